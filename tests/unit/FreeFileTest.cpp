#include "Platform/FreeFile.h"

#include "Platform/Text.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <fstream>

using tessaro::freeFile;

TEST(FreeFile, NumbersANameThatIsTaken) {
    const tessaro::test::TempFolder folder;
    EXPECT_EQ(freeFile(folder.path(), "Báo giá.pdf"), folder / "Báo giá.pdf");
    std::ofstream(folder / "Báo giá.pdf") << "first";
    std::filesystem::create_symlink("/nowhere/at/all", folder / "Báo giá (1).pdf");
    EXPECT_EQ(freeFile(folder.path(), "Báo giá.pdf"), folder / "Báo giá (2).pdf");
    EXPECT_EQ(
        freeFile(folder.path(), "Báo giá.pdf", {folder / "Báo giá (2).pdf"}),
        folder / "Báo giá (3).pdf");
    std::filesystem::create_directory(folder / "README");
    EXPECT_EQ(freeFile(folder.path(), "README"), folder / "README (1)");
}

TEST(FreeFile, StaysInItsFolderUnderANameThatCanBeWritten) {
    const tessaro::test::TempFolder folder;
    EXPECT_EQ(freeFile(folder.path(), "../a/b.txt"), folder / ".._a_b.txt");
    EXPECT_EQ(freeFile(folder.path(), ".."), folder / ".. (1)");
    std::string name;
    for (int i = 0; i < 200; ++i)
        name += "ế";
    for (int ascii = 0; ascii < 3; ++ascii, name.insert(0, "a")) {
        const auto file = freeFile(folder.path(), name + ".pdf");
        EXPECT_EQ(file.extension(), ".pdf");
        EXPECT_TRUE(tessaro::isValidUtf8(file.string()));
        EXPECT_GT(file.filename().string().size(), 210u);
        std::ofstream(file.string() + ".wkdownload (99)") << "bytes";
        EXPECT_TRUE(std::filesystem::exists(file.string() + ".wkdownload (99)"));
    }
    EXPECT_LE(freeFile(folder.path(), "a." + name).filename().string().size(), 220u);
}
