#include <zelplatform/cloudbackuplib/cloudbackuplib.h>

#include <string>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

namespace
{

using cloudbackuplib::CCloudRepoClientId;

const std::string Guid = "0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9";
const std::string ZeroGuid = "00000000-0000-0000-0000-000000000000";

guid::guid_t guid()
{
    return guid::guid_t::FromAStr(Guid);
}

TEST(CloudRepoClientIdTest, WritesAndReadsItsText)
{
    struct Case
    {
        CCloudRepoClientId id;
        std::string text;
    };
    const Case cases[] = {
        {CCloudRepoClientId(), ZeroGuid},
        {CCloudRepoClientId(guid()), Guid},
        {CCloudRepoClientId(guid(), "tenant"), Guid + "|tenant"},
        {CCloudRepoClientId(guid(), "a|b|"), Guid + "|a|b|"},
        {CCloudRepoClientId(guid(), "|"), Guid + "||"},
        {CCloudRepoClientId(guid::guid_t(), " "), ZeroGuid + "| "},
    };
    for (const auto& [id, text] : cases)
    {
        EXPECT_EQ(id.Serialize(), text);
        EXPECT_EQ(CCloudRepoClientId::Deserialize(text), id);
    }
}

TEST(CloudRepoClientIdTest, ReadsOtherSpellings)
{
    struct Case
    {
        std::string text;
        std::string companion;
    };
    const Case cases[] = {
        {Guid + "|", ""},
        {"{" + Guid + "}", ""},
        {"0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9|X", "X"},
    };
    for (const auto& [text, companion] : cases)
    {
        const auto id = CCloudRepoClientId::Deserialize(text);
        EXPECT_EQ(id.GetGuid(), guid());
        EXPECT_EQ(id.GetCompanion(), companion);
    }
}

TEST(CloudRepoClientIdTest, IsEqualWithGuidAndCompanion)
{
    EXPECT_EQ(CCloudRepoClientId(guid(), "a"), CCloudRepoClientId(guid(), "a"));
    EXPECT_NE(CCloudRepoClientId(guid(), "a"), CCloudRepoClientId(guid()));
    EXPECT_NE(CCloudRepoClientId(guid()), CCloudRepoClientId());
}

TEST(CloudRepoClientIdTest, RefusesATextWithoutAGuid)
{
    struct Case
    {
        std::string text;
        std::string message;
    };
    const Case cases[] = {
        {"", "Client id has no GUID."},
        {"|", "Client id has no GUID."},
        {"|tenant", "Client id has no GUID."},
        {" ", "Unable to convert string [ ] to GUID."},
        {"tenant", "Unable to convert string [tenant] to GUID."},
        {"x|" + Guid, "Unable to convert string [x] to GUID."},
        {"{" + Guid, "Unable to convert string [{" + Guid + "] to GUID."},
        {Guid + " |tenant", "Unable to convert string [" + Guid + " ] to GUID."},
    };
    for (const auto& [text, message] : cases)
        EXPECT_EQ(zelmodel_test::failureText([&, t = text] { CCloudRepoClientId::Deserialize(t); }), message);
}

} // namespace
