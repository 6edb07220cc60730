#include <string>

#include <gtest/gtest.h>

#include <keys/sample_keys.h>
#include <support/golden.h>
#include <zelmodel/repositories.h>
#include <zelplatform/datetime/datetime.h>

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::golden;

constexpr const char* ClientId = "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab";

class ExternalRepoCloudContainer : public testing::Test
{
protected:
    ExternalRepoCloudContainer()
    {
        datetime::set_clock_for_tests([] { return 1709728496L; }, [] { return 7200L; });
    }
    ~ExternalRepoCloudContainer() override { datetime::set_clock_for_tests({}, {}); }
};

SExternalRepoCloudContainer fullContainer()
{
    SExternalRepoCloudContainer container;
    container.id = guid::guid_t::FromAStr("11111111-2222-3333-4444-555555555555");
    container.regionId = "eu-central-1";
    container.containerName = "backups";
    container.encryption.emplace();
    container.repositoryName = "Night store";
    container.clientId = cloudbackuplib::CCloudRepoClientId(guid::guid_t::FromAStr(ClientId));
    container.clientDescription = "File server <7>";
    container.backupPath = "/backups/night";
    container.ownerName = "root";
    container.tag = "gold";
    container.isObjectLockEnabled = true;
    SAmazonS3SpecificParams params;
    params.endpoint.apiEndpoint = "https://s3.example.com";
    params.endpoint.arnString = "arn:store:us-1:volume";
    params.endpoint.fingerprint = "00AA";
    params.endpoint.proxy = SAmazonS3Proxy{"http://proxy", "svc", "proxy-pass"};
    params.credentials.accessKeyId = "AKIDEXAMPLE";
    params.credentials.secretAccessKey = "secret/Key+1";
    params.credentials.sessionToken = "token";
    params.credentials.roleName = "role";
    params.credentials.metadataHost = "host";
    params.credentials.lastUpdateTimeUtc = datetime::CDateTime(1000000, true);
    container.s3Params = params;
    container.extentS3Params[guid::guid_t::FromAStr(ClientId)] = params;
    return container;
}

const SAmazonS3SpecificParams& paramsOf(const SExternalRepoCloudContainer& container)
{
    return boost::get<SAmazonS3SpecificParams>(container.s3Params);
}

TEST_F(ExternalRepoCloudContainer, DefaultIsEmpty)
{
    const SExternalRepoCloudContainer container;
    EXPECT_TRUE(container.id.IsEmpty());
    EXPECT_TRUE(container.clientId.GetGuid().IsEmpty());
    EXPECT_EQ("", container.clientId.GetCompanion());
    for (const std::string* text :
         {&container.regionId, &container.containerName, &container.repositoryName, &container.clientDescription,
          &container.backupPath, &container.ownerName, &container.tag})
    {
        EXPECT_EQ("", *text);
    }
    EXPECT_FALSE(container.encryption);
    EXPECT_FALSE(container.isObjectLockEnabled);
    EXPECT_EQ(0, container.s3Params.which());
    EXPECT_TRUE(paramsOf(container) == SAmazonS3SpecificParams());
    EXPECT_TRUE(container.extentS3Params.empty());
}

SCloudContainerEncryption encryption()
{
    const auto id = guid::guid_t::FromAStr(ClientId);
    const zelmodel_test::KeySetParts parts;
    return {parts.make(), zelmodel_test::key("key"), {{id, parts.make()}, {guid::guid_t(), nullptr}}};
}

TEST_F(ExternalRepoCloudContainer, EqualityComparesEveryField)
{
    using Container = SExternalRepoCloudContainer;
    void (*const changes[])(Container&) = {
        [](Container& container) { container.id = guid::guid_t(); },
        [](Container& container) { container.regionId.clear(); },
        [](Container& container) { container.containerName.clear(); },
        [](Container& container) { container.encryption = encryption(); },
        [](Container& container) { container.encryption.reset(); },
        [](Container& container) { container.repositoryName.clear(); },
        [](Container& container) { container.clientId = cloudbackuplib::CCloudRepoClientId(); },
        [](Container& container) { container.clientDescription.clear(); },
        [](Container& container) { container.backupPath.clear(); },
        [](Container& container) { container.ownerName.clear(); },
        [](Container& container) { container.tag.clear(); },
        [](Container& container) { container.isObjectLockEnabled = false; },
        [](Container& container) { boost::get<SAmazonS3SpecificParams>(container.s3Params).credentials.Clear(); },
        [](Container& container) { container.extentS3Params.clear(); },
        [](Container& container) { container.extentS3Params.begin()->second = SAmazonS3SpecificParams(); },
    };
    EXPECT_TRUE(Container() == Container());
    EXPECT_TRUE(fullContainer() == fullContainer());
    EXPECT_FALSE(fullContainer() != fullContainer());
    for (const auto change : changes)
    {
        Container container = fullContainer();
        change(container);
        EXPECT_TRUE(container != fullContainer());
        EXPECT_FALSE(container == fullContainer());
    }
}

TEST_F(ExternalRepoCloudContainer, EncryptionIsEqualWhenItsKeysHoldTheSame)
{
    using Encryption = SCloudContainerEncryption;
    void (*const changes[])(Encryption&) = {
        [](Encryption& keys) { keys.keySet = nullptr; },
        [](Encryption& keys) { keys.key = nullptr; },
        [](Encryption& keys) { keys.key = zelmodel_test::key("Key"); },
        [](Encryption& keys) { keys.keySets.clear(); },
        [](Encryption& keys) { keys.keySets[guid::guid_t()] = keys.keySet; },
    };
    EXPECT_TRUE(Encryption() == Encryption());
    EXPECT_TRUE(encryption() == encryption());
    EXPECT_FALSE(encryption() != encryption());
    for (const auto change : changes)
    {
        Encryption keys = encryption();
        change(keys);
        EXPECT_TRUE(keys != encryption());
        EXPECT_FALSE(keys == encryption());
    }
}

TEST_F(ExternalRepoCloudContainer, WritesASubsetBehindADeclaration)
{
    EXPECT_EQ(golden("root/full.xml"), fullContainer().Serialize());
    EXPECT_EQ(golden("root/empty.xml"), SExternalRepoCloudContainer().Serialize());
}

// The secret key is in the text by its form; whoever holds the text holds a secret.
TEST_F(ExternalRepoCloudContainer, SecretKeyIsWrittenInClear)
{
    const std::string text = fullContainer().Serialize();
    EXPECT_NE(std::string::npos, text.find("\"secret/Key+1\""));
    for (const char* other : {"token", "proxy-pass", "00AA", "arn:store", "/backups/night", "gold", "11111111"})
        EXPECT_EQ(std::string::npos, text.find(other)) << other;
}

TEST_F(ExternalRepoCloudContainer, ReadsBackTheSubset)
{
    const auto container = SExternalRepoCloudContainer::Unserialize(fullContainer().Serialize());
    EXPECT_EQ("eu-central-1", container.regionId);
    EXPECT_EQ("Night store", container.repositoryName);
    EXPECT_TRUE(container.clientId == cloudbackuplib::CCloudRepoClientId(guid::guid_t::FromAStr(ClientId)));
    EXPECT_EQ("File server <7>", container.clientDescription);
    EXPECT_TRUE(container.isObjectLockEnabled);
    EXPECT_EQ("https://s3.example.com", paramsOf(container).endpoint.apiEndpoint);
    EXPECT_EQ("AKIDEXAMPLE", paramsOf(container).credentials.accessKeyId);
    EXPECT_EQ("secret/Key+1", paramsOf(container).credentials.secretAccessKey);
}

// On purpose: the name is written and never read.
TEST_F(ExternalRepoCloudContainer, ContainerNameIsLost)
{
    EXPECT_EQ("", SExternalRepoCloudContainer::Unserialize(golden("root/full.xml")).containerName);
}

TEST_F(ExternalRepoCloudContainer, WhatDoesNotTravelIsEmptyAfterReading)
{
    const auto container = SExternalRepoCloudContainer::Unserialize(golden("root/full.xml"));
    EXPECT_TRUE(container.id.IsEmpty());
    EXPECT_FALSE(container.encryption);
    EXPECT_EQ("", container.backupPath + container.ownerName + container.tag);
    EXPECT_TRUE(container.extentS3Params.empty());

    SAmazonS3SpecificParams expected;
    expected.endpoint.apiEndpoint = "https://s3.example.com";
    expected.credentials.accessKeyId = "AKIDEXAMPLE";
    expected.credentials.secretAccessKey = "secret/Key+1";
    expected.credentials.lastUpdateTimeUtc = datetime::CDateTime(1709728496, true);
    EXPECT_TRUE(paramsOf(container) == expected);
    EXPECT_FALSE(paramsOf(container).endpoint.proxy);
}

TEST_F(ExternalRepoCloudContainer, UpdateTimeIsTheMomentOfReadingInUtc)
{
    const auto time =
        paramsOf(SExternalRepoCloudContainer::Unserialize(golden("root/empty.xml"))).credentials.lastUpdateTimeUtc;
    EXPECT_EQ("03/06/2024 12:34:56", time.toStdString("%m/%d/%Y %H:%M:%S"));
    EXPECT_TRUE(time.isUtcTime());
}

// On purpose: only the client's GUID is kept.
TEST_F(ExternalRepoCloudContainer, CompanionDataOfTheClientIsDropped)
{
    auto written = fullContainer();
    written.clientId = cloudbackuplib::CCloudRepoClientId(guid::guid_t::FromAStr(ClientId), "quota=5|more");
    const std::string text = written.Serialize();
    EXPECT_NE(std::string::npos, text.find(std::string("clientInfo.id=\"") + ClientId + "|quota=5|more\"")) << text;
    const auto read = SExternalRepoCloudContainer::Unserialize(text);
    EXPECT_EQ(guid::guid_t::FromAStr(ClientId), read.clientId.GetGuid());
    EXPECT_EQ("", read.clientId.GetCompanion());
}

TEST_F(ExternalRepoCloudContainer, ReadsOtherWritersForms)
{
    const auto container = SExternalRepoCloudContainer::Unserialize(golden("root/indented.xml"));
    EXPECT_EQ("eu-central-1", container.regionId);
    EXPECT_EQ("Night store", container.repositoryName);
    EXPECT_EQ(ClientId, container.clientId.GetGuid().ToAStr());
    EXPECT_EQ("", container.clientDescription);
    EXPECT_FALSE(container.isObjectLockEnabled);
    EXPECT_EQ("", paramsOf(container).credentials.sessionToken);
    EXPECT_EQ("secret/Key+1", paramsOf(container).credentials.secretAccessKey);
}

TEST_F(ExternalRepoCloudContainer, TextsSurviveWhateverTheyHold)
{
    auto written = fullContainer();
    written.regionId = "a&b<c>\"d\" 'e'";
    written.repositoryName = " line\r\nand\ttab ";
    written.clientDescription = "%1 \xC3\xBC \xFF";
    const auto read = SExternalRepoCloudContainer::Unserialize(written.Serialize());
    EXPECT_EQ(written.regionId, read.regionId);
    EXPECT_EQ(written.repositoryName, read.repositoryName);
    EXPECT_EQ(written.clientDescription, read.clientDescription);
}

} // namespace
