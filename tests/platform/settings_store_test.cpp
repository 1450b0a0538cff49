#include "platform/settings_store.h"

#include <sys/stat.h>

#include <fstream>

#include "numeric/error.h"
#include "platform/files.h"
#include "platform/help_text.h"
#include "support/temp_folder.h"

namespace kalvane::test {
namespace {

TEST(SettingsStore, KeepsTextsOverARestart) {
    const TempFolder folder;
    const auto file = folder / "deep/settings";
    {
        SettingsStore store(file);
        EXPECT_EQ(store.Read("Tesmar", "KALVANE", "FYOPTION", "1"), "1");
        EXPECT_EQ(store.Read("Tesmar", "KALVANE", "FYOPTION", "0"), "0");
        store.Save("Tesmar", "KALVANE", "DW", "a=b\\n\r\n塑钢 ");
        store.Save("Norvex", "Param", "DW", "");
    }
    std::ofstream(file, std::ios::app) << "a damaged line\n";
    const SettingsStore again(file);
    EXPECT_EQ(again.Read("Tesmar", "KALVANE", "DW", "x"), "a=b\\n\r\n塑钢 ");
    EXPECT_EQ(again.Read("Norvex", "Param", "DW", "x"), "");
    SettingsStore nowhere(file / "settings");  // below a file
    nowhere.Save("Tesmar", "KALVANE", "DW", "this run");
    EXPECT_EQ(nowhere.Read("Tesmar", "KALVANE", "DW", "x"), "this run");
}

TEST(SettingsStore, OfTwoProgramsNoneLosesWhatTheOtherSaves) {
    const TempFolder folder;
    SettingsStore first(folder / "settings");
    SettingsStore second(folder / "settings");
    first.Save("Tesmar", "KALVANE", "DW", "甲");
    second.Save("Tesmar", "YHOPTION", "CLC", "6000");
    first.Save("Tesmar", "KALVANE", "TEL", "1");
    const SettingsStore again(folder / "settings");
    EXPECT_EQ(again.Read("Tesmar", "KALVANE", "DW", ""), "甲");
    EXPECT_EQ(again.Read("Tesmar", "YHOPTION", "CLC", ""), "6000");
    EXPECT_EQ(again.Read("Tesmar", "KALVANE", "TEL", ""), "1");
}

TEST(Files, WhatIsNoPlainFileIsNotWaitedFor) {
    const TempFolder folder;
    ASSERT_EQ(mkfifo((folder / "help.txt").c_str(), 0600), 0);
    EXPECT_EQ(HelpText(folder.Path()), "无帮助文件！");
    EXPECT_EQ(SettingsStore(folder / "help.txt").Read("Tesmar", "KALVANE", "DW", "x"), "x");
    std::ofstream(folder / "large") << "x";
    std::filesystem::resize_file(folder / "large", kLargestOwnFile + 1);
    EXPECT_THROW(ReadPlainFile(folder / "large"), FileError);
    std::filesystem::create_symlink(folder / "a", folder / "b");
    std::filesystem::create_symlink(folder / "b", folder / "a");
    EXPECT_FALSE(FileExists(folder / "a")) << "links in a circle";
    EXPECT_THROW(ReadPlainFile(folder / "a"), FileError);
}

TEST(Files, AFailedWriteLeavesTheOldFile) {
    const TempFolder folder;
    WriteFileAtomically(folder / "a.MC", "old");
    EXPECT_THROW(WriteFileAtomically(folder / "missing/a.MC", "new"), FileError);
    std::filesystem::create_directory(folder / "d");
    EXPECT_THROW(WriteFileAtomically(folder / "d", "new"), FileError);
    EXPECT_EQ(ReadFile(folder / "a.MC"), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 2);
    EXPECT_THROW(ReadFile(folder / "d"), FileError);
    EXPECT_THROW(ReadFile(folder / "none"), FileError);
}

}  // namespace
}  // namespace kalvane::test
