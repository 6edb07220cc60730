#include <zelmodel/enums/backup_repository_type.h>

#include <gtest/gtest.h>

using zelplatform::model::BackupRepositoryType;

namespace
{

TEST(BackupRepositoryTypeTest, ListsStoredNamesOnly)
{
    EXPECT_EQ(
        BackupRepositoryType::toStringList(),
        (std::vector<std::string>{"LocalDrive", "QorServer", "Share", "Cloud", "ExternalRepository", "ObjectStorage"}));
}

TEST(BackupRepositoryTypeTest, ReadsTheOlderNameOfExternalRepositories)
{
    EXPECT_EQ(BackupRepositoryType::fromStr("s3bucket"), BackupRepositoryType::ExternalRepository);
    EXPECT_EQ(BackupRepositoryType::fromStr("OBJECTSTORAGE"), BackupRepositoryType::ObjectStorage);
}

} // namespace
