#include "Steps.h"

#include <iostream>

using namespace tessaro::demo;

int main(int argc, char** argv) {
    if (argc != 6) {
        std::cerr
            << "usage: tessaro-demo-walker PROGRAM ORIGIN FOLDER TEXT SCALE\n\n"
               "Walks through the program against the demo server at ORIGIN as a user would,\n"
               "by the accessibility bus, and writes a picture of each screen to FOLDER.\n"
               "The program keeps its things in FOLDER/data and FOLDER/config. The desktop shows\n"
               "text at TEXT percent of its usual size and a point as SCALE by SCALE pixels.\n";
        return 2;
    }
    const std::filesystem::path folder = std::filesystem::absolute(argv[3]);
    try {
        Walk walk(
            {.program = argv[1],
             .data = folder / "data/Tessaro",
             .settings = folder / "config/Tessaro/settings.ini",
             .pictures = folder,
             .opened = folder / "opened.txt",
             .origin = argv[2]},
            {.text = std::stoi(argv[4]) / 100.0, .scale = std::stoi(argv[5])});
        try {
            for (const auto stretch :
                 {walkAccounts, walkPages, walkInbox, walkFiles, walkMedia, walkTheme,
                  walkSecondStart, walkSupport})
                stretch(walk);
            walk.step("Close the window");
            walk.closeProgram();
        } catch (const WalkFailure&) {
            walk.explainFailure();
            throw;
        }
    } catch (const std::exception& failure) {
        std::cerr << "✗ " << failure.what() << std::endl;
        return 1;
    }
    std::cout << "Every step was seen to happen." << std::endl;
    return 0;
}
