#include "Platform/FreeFile.h"

#include "Platform/Text.h"
#include "support/Repeated.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <fstream>

using tessaro::freeFile;

TEST(FreeFile, NumbersANameThatIsTakenAndStaysInItsFolderUnderOneThatCanBeWritten) {
    const tessaro::test::TempFolder folder;
    std::ofstream(folder / "Báo giá.pdf") << "first";
    std::filesystem::create_symlink("/nowhere/at/all", folder / "Báo giá (1).pdf");
    EXPECT_EQ(freeFile(folder.path(), "Báo giá.pdf"), folder / "Báo giá (2).pdf");
    EXPECT_EQ(
        freeFile(folder.path(), "Báo giá.pdf", {folder / "Báo giá (2).pdf"}),
        folder / "Báo giá (3).pdf");
    std::filesystem::create_directory(folder / "README");
    EXPECT_EQ(freeFile(folder.path(), "README"), folder / "README (1)");
    EXPECT_EQ(freeFile(folder.path(), "../a/b.txt"), folder / ".._a_b.txt");
    EXPECT_EQ(freeFile(folder.path(), ".."), folder / ".. (1)");
    const auto name = tessaro::test::repeated("ế", 200);
    for (const std::string ascii : {"", "a", "aa"}) {
        const auto file = freeFile(folder.path(), ascii + name + ".pdf");
        EXPECT_EQ(file.extension(), ".pdf");
        EXPECT_TRUE(tessaro::isValidUtf8(file.string()));
        EXPECT_GT(file.filename().string().size(), 210u);
        EXPECT_TRUE(std::ofstream(file.string() + ".wkdownload (99)"));
    }
}
