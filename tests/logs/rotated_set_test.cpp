#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "files/input_file.h"
#include "logs/rotated_set.h"
#include "support/temporary_folder.h"

namespace
{

using logs::oldestFirst;
using logs::rotatedSetOf;
using Names = std::vector<std::string>;

TEST(RotatedSet, AllFilesOfTheNameOldestFirst)
{
    const zelmodel_test::TemporaryFolder folder;
    for (const char* name : {"job.log", "job.log.1", "job.log.2.gz", "job.log.10.gz", "job.log.9", "job.log.9.gz",
                             "job.log.x", "job.log.1.bak", "job.log.3.gz.tmp", "myjob.log.4", "job.log2", "job.log.",
                             "job.log.0", "job.log.12345678901234567890", "job.logs"})
        folder.write(name, "");
    EXPECT_EQ(rotatedSetOf(folder / "job.log"),
              (Names{folder / "job.log.10.gz", folder / "job.log.9", folder / "job.log.2.gz", folder / "job.log.1",
                     folder / "job.log"}));
}

TEST(RotatedSet, TheFileInUseMayBeMissing)
{
    const zelmodel_test::TemporaryFolder folder;
    folder.write("job.log.1", "");
    EXPECT_EQ(rotatedSetOf(folder / "job.log"), Names{folder / "job.log.1"});
    EXPECT_EQ(rotatedSetOf(folder / "other.log"), Names{folder / "other.log"});
}

/// In the middle of a rotation both are there; a folder lists its files in any order.
TEST(RotatedSet, TheFileThatIsNotCompressedGoesFirst)
{
    const zelmodel_test::TemporaryFolder folder;
    Names expected;
    for (int age = 30; age > 0; --age)
    {
        const auto name = "job.log." + std::to_string(age);
        folder.write(age % 2 == 0 ? name : name + ".gz", "");
        folder.write(age % 2 == 0 ? name + ".gz" : name, "");
        expected.push_back(folder / name);
    }
    EXPECT_EQ(rotatedSetOf(folder / "job.log"), expected);
}

TEST(RotatedSet, ANameWithoutAFolderMeansTheCurrentOne)
{
    const zelmodel_test::TemporaryFolder folder;
    folder.write("job.log.1", "");
    folder.write("job.log", "");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder / "");
    const auto set = rotatedSetOf("job.log");
    std::filesystem::current_path(before);
    EXPECT_EQ(set, (Names{"job.log.1", "job.log"}));
}

TEST(RotatedSet, AFolderThatCannotBeReadIsAFailure)
{
    EXPECT_THROW(rotatedSetOf("/no/such/folder/job.log"), files::InputError);
}

TEST(OldestFirst, SortsEachSetWhereItsFirstNameStands)
{
    EXPECT_EQ(oldestFirst({"a.log", "a.log.1", "a.log.10.gz", "a.log.2.gz", "b.log.2", "b.log"}),
              (Names{"a.log.10.gz", "a.log.2.gz", "a.log.1", "a.log", "b.log.2", "b.log"}));
    EXPECT_EQ(oldestFirst({"b.log", "a.log", "b.log.1"}), (Names{"b.log.1", "b.log", "a.log"}));
    EXPECT_EQ(oldestFirst({"-", "x/a.log", "y/a.log.1"}), (Names{"-", "x/a.log", "y/a.log.1"}));
    // Names without a number keep the order in which they were given.
    EXPECT_EQ(oldestFirst({"job-20240307.gz", "job-20240306.gz"}), (Names{"job-20240307.gz", "job-20240306.gz"}));
    EXPECT_EQ(oldestFirst({}), Names{});
    // Nothing but a number is a name of its own.
    EXPECT_EQ(oldestFirst({"1", ".1", "2", ".2"}), (Names{"1", ".1", "2", ".2"}));
}

} // namespace
