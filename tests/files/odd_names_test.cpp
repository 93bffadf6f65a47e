// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <sys/stat.h>
#include <fstream>

#include "tests/files/disk_trouble.h"

namespace plasmos::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Names files that nobody should have, and what the person is told.
struct NamesRow {
    std::string_view Name;
    void (*Lay)(const std::string& path);
    std::string_view Told;
};
void PrintTo(const NamesRow& row, std::ostream* out) {
    *out << row.Name;
}
void Write(const std::string& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}
class OddNames : public DiskTrouble, public ::testing::WithParamInterface<NamesRow> {};

TEST_P(OddNames, AreToldAndNotRepaired) {
    files.MakeFolder();
    fs::permissions(folder, fs::perms(0777));
    const auto path = files.PathOf(NamesFile);
    GetParam().Lay(path);
    std::error_code none;
    const auto size = fs::file_size(path, none);
    {
        const AsNobody nobody;
        EXPECT_THAT(BoxesOfAGame(), ElementsAre(AllOf(HasSubstr(path), HasSubstr(std::string(GetParam().Told)))));
    }
    EXPECT_EQ(fs::file_size(path, none), size);
    fs::remove_all(path);
    EXPECT_THAT(BoxesOfAGame(), IsEmpty());
}

constexpr std::uintmax_t Huge = 100U << 20U;

const NamesRow NamesRows[] = {
    {"a_pipe", [](const std::string& path) { ASSERT_EQ(mkfifo(path.c_str(), 0666), 0); },
     "Error #75: Path/File access error"},
    {"a_folder", [](const std::string& path) { fs::create_directory(path); }, "Error #75: Path/File access error"},
    {"unreadable",
     [](const std::string& path) {
         Write(path, "1 - Otto\n");
         fs::permissions(path, fs::perms(0));
     },
     "Error #70: Permission denied"},
    {"empty", [](const std::string& path) { Write(path, ""); }, "has 0 names for clan 1 and must have 7"},
    {"binary",
     [](const std::string& path) {
         Write(path, std::string("\x7f"
                                 "ELF\0\1\2\xff\xfe\n\r\0",
                                 12));
     },
     "has 0 names for clan 1"},
    {"utf_16",
     [](const std::string& path) {
         Write(path, std::string("\xff\xfe"
                                 "1\0 \0-\0 \0O\0\n\0",
                                 14));
     },
     "has 0 names for clan 1"},
    {"a_hundred_megabytes_without_an_end",
     [](const std::string& path) {
         Write(path, "1 - Otto\n1 - Olga\n");
         fs::resize_file(path, Huge);
     },
     "has 2 names for clan 1"},
    {"a_hundred_megabytes_of_lines",
     [](const std::string& path) {
         std::string lines;
         while (lines.size() < 1U << 20U) {
             lines += "6 - Ysak\n";
         }
         std::ofstream file(path, std::ios::binary);
         for (int megabyte = 0; megabyte < 100; ++megabyte) {
             file << lines;
         }
     },
     "has 0 names for clan 1"},
};
INSTANTIATE_TEST_SUITE_P(Names, OddNames, ::testing::ValuesIn(NamesRows), RowName());

}  // namespace
}  // namespace plasmos::testing
