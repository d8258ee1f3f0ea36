#include "WalkTest.h"

#include "Platform/FileStore.h"

#include <fstream>
#include <iostream>

namespace tessaro::test {

using demo::button, demo::dialog, demo::field;

WalkTest::WalkTest() {
    for (const auto& [variable, name] :
         {std::pair("XDG_DATA_HOME", "data"), std::pair("XDG_CONFIG_HOME", "config"),
          std::pair("XDG_CACHE_HOME", "cache")})
        environment_.set(variable, (home_ / name).string());
    // The toolkit complains when it is asked about a control that is just going.
    environment_.set("G_DEBUG", std::nullopt);
    std::filesystem::create_directories(settings_.parent_path());
    std::ofstream(settings_) << "[settings]\n"
                             << "graph_api_origin=" << server_.origin() << "\n"
                             << "inbox_origin=" << server_.origin() << "\n"
                             << "skarn_server_url=" << server_.origin() << "\n";
}

WalkTest::~WalkTest() {
    if (!HasFailure())
        return;
    walk_.explainFailure();
    for (const char* file : {"failed.txt", "program-output.txt"})
        std::cout << readFile(home_ / file).value_or("") << std::endl;
}

void WalkTest::startProgram() {
    walk_.startProgram();
    walk_.press(button("Để sau"));
}

void WalkTest::beginAccount(const std::string& name) {
    walk_.press(button("Thêm tài khoản"));
    walk_.see(dialog("Thêm tài khoản mới"));
    walk_.type(field("TÊN TÀI KHOẢN"), name);
}

void WalkTest::finishAccount() {
    walk_.press(button("Thêm tài khoản"));
    walk_.seeGone(dialog("Thêm tài khoản mới"));
}

} // namespace tessaro::test
