#include "Steps.h"

#include <fstream>

namespace tessaro::demo {

void walkSecondStart(Walk& walk) {
    walk.step("Close the window, which ends the program");
    walk.closeProgram();

    // One Page that is not connected any more.
    auto pages = readRecords(walk, "pages.json");
    pages[2]["isConnected"] = false;
    std::ofstream(walk.places().data / "pages.json") << pages.dump(2) << "\n";

    walk.step("Start again and take the update: its address goes to the desktop");
    walk.startProgram();
    walk.see(dialog("Bản Cập Nhật Mới"));
    walk.press(button("Cập nhật ngay"));
    walk.expectOpened("/links/update");

    walk.step("The stored accounts and Pages are there, with every kind of picture");
    walk.press(button(firstAccount));
    for (const char* name : {"Tiệm Hoa Nắng Mai", "Bếp Nhà Lúa", "Cà Phê Góc Phố"})
        walk.see(button(name));
    walk.picture("page-list");
}

} // namespace tessaro::demo
