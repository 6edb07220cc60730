#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "show_case.h"
#include "support/run_command.h"
#include "support/temporary_folder.h"

namespace
{

namespace fs = std::filesystem;

using zelmodel_test::example;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandInto;
using zelmodel_test::TemporaryFolder;

using Names = std::vector<std::string>;

constexpr const char* Old = "older/job-state-version-1.xml";
constexpr const char* Current = "<BackupJobState Version=\"2\" ObjectStorageOperationMode=\"3\"/>\n";

/// A folder of its own with the older document in it.
class ConvertInPlace : public testing::Test
{
protected:
    void SetUp() override { write("job.xml", example(Old)); }

    std::string path(const std::string& name) const { return m_folder / name; }

    void write(const std::string& name, const std::string& text) const { m_folder.write(name, text); }

    std::string read(const std::string& name) const { return m_folder.text(name); }

    Names names() const { return m_folder.names(); }

    static struct stat statusOf(const std::string& file)
    {
        struct stat status = {};
        EXPECT_EQ(::lstat(file.c_str(), &status), 0) << file;
        return status;
    }

    TemporaryFolder m_folder;
};

TEST_F(ConvertInPlace, KeepsTheOldFile)
{
    const auto result = runCommand({"convert", "--in-place", path("job.xml")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(result.messages.find("Backup: " + path("job.xml.orig") + "\n"), std::string::npos) << result.messages;
    EXPECT_EQ(read("job.xml"), Current);
    EXPECT_EQ(read("job.xml.orig"), example(Old));
    EXPECT_EQ(names(), (Names{"job.xml", "job.xml.orig"}));
}

TEST_F(ConvertInPlace, NoBackupIsEverOverwritten)
{
    write("job.xml.orig", "the first");
    fs::create_symlink("nowhere", path("job.xml.orig.1"));
    const auto result = runCommand({"convert", "--in-place", path("job.xml")});
    EXPECT_EQ(result.exitCode, 0) << result.messages;
    EXPECT_EQ(read("job.xml.orig"), "the first");
    EXPECT_EQ(read("job.xml.orig.2"), example(Old));
    EXPECT_EQ(names(), (Names{"job.xml", "job.xml.orig", "job.xml.orig.1", "job.xml.orig.2"}));
}

TEST_F(ConvertInPlace, AfterTenThousandBackupsNothingIsReplaced)
{
    write("job.xml.orig", "");
    for (int number = 1; number < 10000; ++number)
        fs::create_hard_link(path("job.xml.orig"), path("job.xml.orig." + std::to_string(number)));
    const auto result = runCommand({"convert", "--in-place", path("job.xml")});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, path("job.xml") + ": cannot be replaced: there are too many backups of it\n");
    EXPECT_EQ(read("job.xml"), example(Old));
    EXPECT_EQ(names().size(), 10001U) << "the new file is gone";
}

TEST_F(ConvertInPlace, TheCurrentFormIsLeftAlone)
{
    write("job.xml", Current);
    const auto before = statusOf(path("job.xml"));
    const auto result = runCommand({"convert", "--in-place", path("job.xml")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "Unchanged: it is in the current form\n");
    EXPECT_EQ(names(), Names{"job.xml"});
    EXPECT_EQ(statusOf(path("job.xml")).st_ino, before.st_ino);
}

TEST_F(ConvertInPlace, PermissionsAndOwnerStay)
{
    ASSERT_EQ(::chmod(path("job.xml").c_str(), 0640), 0);
    if (::geteuid() == 0)
    {
        ASSERT_EQ(::chown(path("job.xml").c_str(), 12345, 23456), 0);
    }
    const auto before = statusOf(path("job.xml"));
    EXPECT_EQ(runCommand({"convert", "--in-place", path("job.xml")}).exitCode, 0);
    for (const auto* name : {"job.xml", "job.xml.orig"})
    {
        const auto after = statusOf(path(name));
        EXPECT_EQ(after.st_mode, before.st_mode) << name;
        EXPECT_EQ(after.st_uid, before.st_uid) << name;
        EXPECT_EQ(after.st_gid, before.st_gid) << name;
    }
}

TEST_F(ConvertInPlace, TheFileBehindALinkIsReplaced)
{
    fs::create_directory(m_folder / "links");
    fs::create_symlink("../job.xml", path("links/job.xml"));
    const auto result = runCommand({"convert", "--in-place", path("links/job.xml")});
    EXPECT_EQ(result.exitCode, 0) << result.messages;
    EXPECT_TRUE(fs::is_symlink(path("links/job.xml")));
    EXPECT_EQ(read("job.xml"), Current);
    EXPECT_EQ(names(), (Names{"job.xml", "job.xml.orig", "links"}));
}

TEST_F(ConvertInPlace, ARefusedDocumentIsLeftAlone)
{
    for (const std::string text :
         {"<BackupJobState Version='3'/>", "rubbish", "", "<Any ordinalId='1' updateUsn='2'/>"})
    {
        write("job.xml", text);
        EXPECT_EQ(runCommand({"convert", "--in-place", path("job.xml")}).exitCode, 3) << text;
        EXPECT_EQ(read("job.xml"), text);
        EXPECT_EQ(names(), Names{"job.xml"});
    }
}

/// What stands around the settings belongs to somebody else.
TEST_F(ConvertInPlace, AnEnclosedDocumentIsLeftAlone)
{
    write("job.xml", example("immutability-enclosed.xml"));
    const auto result = runCommand({"convert", "--in-place", path("job.xml")});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_NE(result.messages.find("stands inside of another one"), std::string::npos) << result.messages;
    EXPECT_EQ(read("job.xml"), example("immutability-enclosed.xml"));
    EXPECT_EQ(names(), Names{"job.xml"});
}

/// The name is as long as names may be, so that neither the new file nor the backup can stand beside it.
TEST_F(ConvertInPlace, NothingChangesWhenItFails)
{
    const std::string name(255, 'j');
    fs::rename(path("job.xml"), path(name));
    const auto result = runCommand({"convert", "--in-place", path(name)});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, path(name) + ": cannot be written: File name too long\n");
    EXPECT_EQ(read(name), example(Old));
    EXPECT_EQ(names(), Names{name});
}

TEST_F(ConvertInPlace, OnlyARegularFileIsReplaced)
{
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    const auto writer = ::fork();
    ASSERT_GE(writer, 0);
    if (writer == 0)
    {
        write("pipe", example(Old));
        ::_exit(0);
    }
    const auto result = runCommand({"convert", "--in-place", path("pipe")});
    ::waitpid(writer, nullptr, 0);
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, path("pipe") + ": cannot be replaced: it is no regular file\n");
    EXPECT_EQ(names(), (Names{"job.xml", "pipe"}));
}

TEST_F(ConvertInPlace, JsonNamesTheBackup)
{
    const auto result = runCommand({"convert", "--in-place", "--json", path("job.xml")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("\"backup\": \"" + path("job.xml.orig") + "\""), std::string::npos) << result.output;
    EXPECT_EQ(result.output.find("\"document\""), std::string::npos) << result.output;
}

TEST_F(ConvertInPlace, AnotherFileIsWrittenWhenItIsNew)
{
    const auto result = runCommand({"convert", path("job.xml"), "-o", path("new.xml")});
    EXPECT_EQ(result.exitCode, 0) << result.messages;
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(read("new.xml"), Current);
    EXPECT_EQ(read("job.xml"), example(Old));
    write("new.xml", "somebody's");
    const auto again = runCommand({"convert", path("job.xml"), "--output", path("new.xml")});
    EXPECT_EQ(again.exitCode, 4);
    EXPECT_EQ(again.messages, path("new.xml") + ": cannot be written: File exists\n");
    EXPECT_EQ(read("new.xml"), "somebody's");
    EXPECT_EQ(names(), (Names{"job.xml", "new.xml"}));
}

TEST_F(ConvertInPlace, NothingIsWrittenBesideWithoutIt)
{
    EXPECT_EQ(runCommand({"convert", path("job.xml")}).exitCode, 0);
    EXPECT_EQ(runCommand({"diff", path("job.xml"), path("job.xml")}).exitCode, 0);
    EXPECT_EQ(names(), Names{"job.xml"});
    EXPECT_EQ(runCommandInto("/dev/full", {"convert", path("job.xml")}).exitCode, 4);
    EXPECT_EQ(names(), Names{"job.xml"});
}

} // namespace
