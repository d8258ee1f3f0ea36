#include "WalkTest.h"

#include <fstream>
#include <iostream>
#include <thread>

namespace tessaro::test {

using namespace demo;

WalkTest::WalkTest() {
    for (const auto& [variable, name] :
         {std::pair("XDG_DATA_HOME", "data"), std::pair("XDG_CONFIG_HOME", "config"),
          std::pair("XDG_CACHE_HOME", "cache")})
        environment_.set(variable, (home_ / name).string());
    // The toolkit prints a warning when it is asked about a control that is going away.
    environment_.set("G_DEBUG", std::nullopt);
    writeSettings();
}

WalkTest::~WalkTest() {
    if (!HasFailure())
        return;
    walk_.explainFailure();
    for (const char* file : {"failed.txt", "program-output.txt"})
        std::cout << demo::readFile(home_ / file) << std::endl;
}

std::string WalkTest::readOrigin() const {
    std::string line;
    while (!std::getline(std::ifstream(home_ / "server.txt"), line))
        std::this_thread::yield();
    return line.substr(line.find("http://"));
}

void WalkTest::writeSettings(std::map<std::string, std::string> settings) const {
    for (const char* key : {"graph_api_origin", "inbox_origin", "skarn_server_url"})
        settings.emplace(key, origin_);
    std::filesystem::create_directories(settings_.parent_path());
    std::ofstream file(settings_);
    file << "[settings]\n";
    for (const auto& [key, value] : settings)
        file << key << "=" << value << "\n";
}

void WalkTest::startProgram() {
    walk_.startProgram();
    walk_.press(button("Để sau"));
}

std::string WalkTest::logs() const {
    std::string all;
    std::error_code missing;
    for (const auto& file : std::filesystem::directory_iterator(data_ / "logs", missing))
        all += demo::readFile(file.path());
    return all;
}

} // namespace tessaro::test
