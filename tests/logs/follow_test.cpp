#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "logs/follow.h"
#include "support/expect_failure.h"
#include "support/gzip_bytes.h"
#include "support/temporary_folder.h"

namespace
{

using zelmodel_test::failureText;
using zelmodel_test::TemporaryFolder;

using Events = std::vector<std::string>;

/// Follows the file; between two looks one of the steps happens, and after the last one it ends.
Events follow(const std::string& name, const std::vector<std::function<void()>>& happenings)
{
    Events events;
    const auto note = [&events](const logs::LogReader& reader) {
        events.push_back(std::to_string(reader.number()) + ' ' + reader.text());
    };
    std::size_t happened = 0;
    logs::FollowSteps steps;
    steps.read = [&](logs::LogReader& reader) {
        while (reader.next())
            note(reader);
    };
    steps.finish = [&](logs::LogReader& reader) {
        if (reader.finish())
            note(reader);
        events.emplace_back("finished");
    };
    steps.changed = [&](logs::EChange change) {
        events.emplace_back(change == logs::EChange::Replaced ? "replaced" : "truncated");
    };
    steps.wait = [&] {
        if (happened == happenings.size())
            return false;
        happenings[happened++]();
        return true;
    };
    logs::LibraryNotes notes;
    logs::follow(name, notes, steps);
    return events;
}

TEST(Follow, GivesWhatIsAppendedLineByLine)
{
    const TemporaryFolder folder;
    const auto name = folder.write("job.log", "one\ntw");
    EXPECT_EQ(
        follow(name, {[&] { folder.append("job.log", "o\nthr"); }, [] {}, [&] { folder.append("job.log", "ee"); }}),
        (Events{"1 one", "2 two", "3 three", "finished"}));
}

TEST(Follow, ReadsAReplacedFileToItsEnd)
{
    const TemporaryFolder folder;
    const auto name = folder.write("job.log", "one\n");
    EXPECT_EQ(follow(name, {[&] {
                                folder.append("job.log", "two\nthree");
                                std::filesystem::rename(name, folder / "job.log.1");
                                folder.write("job.log", "four\n");
                            },
                            [&] { folder.append("job.log", "five\n"); }}),
              (Events{"1 one", "2 two", "3 three", "finished", "replaced", "1 four", "2 five", "finished"}));
}

TEST(Follow, WaitsForTheNewFileWhileTheNameIsMissing)
{
    const TemporaryFolder folder;
    const auto name = folder.write("job.log", "one\n");
    EXPECT_EQ(follow(name, {[&] { std::filesystem::rename(name, folder / "job.log.1"); },
                            [&] { folder.append("job.log.1", "two\n"); }, [&] { folder.write("job.log", "three\n"); }}),
              (Events{"1 one", "2 two", "finished", "replaced", "1 three", "finished"}));
}

TEST(Follow, BeginsAgainWhenTheFileIsTruncated)
{
    const TemporaryFolder folder;
    const auto name = folder.write("job.log", "one\ntwo\nunended");
    EXPECT_EQ(
        follow(name, {[&] { std::filesystem::resize_file(name, 0); }, [&] { folder.append("job.log", "three\n"); }}),
        (Events{"1 one", "2 two", "3 unended", "finished", "truncated", "1 three", "finished"}));
}

TEST(Follow, EndsAtOnceWithWhatIsThere)
{
    const TemporaryFolder folder;
    EXPECT_EQ(follow(folder.write("empty.log", ""), {}), Events{"finished"});
    EXPECT_EQ(follow(folder.write("job.log", "one"), {}), (Events{"1 one", "finished"}));
}

TEST(Follow, RefusesWhatCannotBeFollowed)
{
    const TemporaryFolder folder;
    EXPECT_EQ(failureText([&] { follow(folder.write("job.log", zelmodel_test::gzipBytes("one\n")), {}); }),
              "A compressed file cannot be followed.");
    EXPECT_EQ(failureText([] { follow("/dev/null", {}); }), "Only a regular file can be followed.");
    EXPECT_EQ(failureText([&] { follow(folder / "missing", {}); }), "cannot be read: No such file or directory");
}

} // namespace
