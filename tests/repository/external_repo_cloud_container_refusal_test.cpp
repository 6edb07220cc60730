#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <support/attributes.h>
#include <support/expect_failure.h>
#include <zelmodel/repositories.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/logging/logging.h>

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::Attributes;
using zelmodel_test::elementText;
using zelmodel_test::failureText;
using zelmodel_test::firstOf;
using zelmodel_test::without;

const std::string refused = "Failed to SExternalRepoCloudContainer::Unserialize. ";
constexpr const char* Canary = "canary-5b1e";

/// In the order in which they are read, and all that is read.
const Attributes attributes = {
    {"regionId", "eu-central-1"},
    {"repoName", "Night store"},
    {"clientInfo.id", "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab"},
    {"clientInfo.description", "File server"},
    {"isObjectLockEnabled", "true"},
    {"SAmazonS3SpecificParams.creds.secretAccessKey", Canary},
    {"SAmazonS3SpecificParams.creds.accessKeyId", "AKIDEXAMPLE"},
    {"SAmazonS3SpecificParams.endpoint.apiEndpoint", "https://s3.example.com"},
};

std::string document(const Attributes& given)
{
    return elementText("root", given);
}

std::string withValue(const std::string& name, const std::string& value)
{
    return document(zelmodel_test::withValue(attributes, name, value));
}

std::string refusal(const std::string& text)
{
    return failureText([&] { SExternalRepoCloudContainer::Unserialize(text); });
}

TEST(ExternalRepoCloudContainerRefusal, AllButTheContainerNameIsRequired)
{
    EXPECT_NO_THROW(SExternalRepoCloudContainer::Unserialize(document(attributes)));
    for (std::size_t missing = 0; missing < attributes.size(); ++missing)
    {
        EXPECT_EQ(refused + "Attribute [" + attributes[missing].name + "] is not found in [root].",
                  refusal(document(without(attributes, missing))));
    }
}

TEST(ExternalRepoCloudContainerRefusal, TheFirstMissingInReadingOrderIsNamed)
{
    for (std::size_t present = 0; present < attributes.size(); ++present)
    {
        EXPECT_EQ(refused + "Attribute [" + attributes[present].name + "] is not found in [root].",
                  refusal(document(firstOf(attributes, present))));
    }
}

TEST(ExternalRepoCloudContainerRefusal, RootMustHaveItsName)
{
    for (const char* text : {"<Root/>", "<a><root/></a>", "<a/><root/>"})
        EXPECT_EQ(refused + "Root node [root] is not found.", refusal(text));
}

TEST(ExternalRepoCloudContainerRefusal, TextMustBeXml)
{
    EXPECT_EQ(refused + "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].", refusal("<root></b>"));
    for (const std::string& text :
         {std::string(), std::string("root"), document(attributes) + "text", withValue("repoName", "&#0;"),
          withValue("repoName", std::string("\0", 1)), "<root><a/>" + document(attributes)})
    {
        const std::string failure = refusal(text);
        EXPECT_EQ(0U, failure.find(refused + "Unable to parse XML at line ")) << failure;
        EXPECT_EQ(std::string::npos, failure.find(Canary)) << failure;
    }
}

TEST(ExternalRepoCloudContainerRefusal, LockMustBeAFlag)
{
    for (const char* text : {"", "yes", "2", " true"})
    {
        EXPECT_EQ(refused + "Unable to convert string [" + text + "] to [bool].",
                  refusal(withValue("isObjectLockEnabled", text)));
    }
}

// An empty client is refused, although an empty text is the zero GUID elsewhere.
TEST(ExternalRepoCloudContainerRefusal, ClientMustBeAGuid)
{
    for (const char* text : {"", "|", "|x", "x", "6b1f2c3d-0a1b-4c2d-8e3f-0123456789a", "{6b1f2c3d-0a1b-4c2d-8e3f|",
                             " 6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab", "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab,x"})
    {
        const std::string failure = refusal(withValue("clientInfo.id", text));
        EXPECT_EQ(0U, failure.find(refused)) << failure;
        EXPECT_LT(refused.size(), failure.size()) << text;
        EXPECT_EQ(std::string::npos, failure.find(Canary)) << failure;
    }
}

TEST(ExternalRepoCloudContainerRefusal, WritingWhatXmlCannotCarryIsRefused)
{
    std::string SExternalRepoCloudContainer::*const fields[] = {
        &SExternalRepoCloudContainer::regionId, &SExternalRepoCloudContainer::containerName,
        &SExternalRepoCloudContainer::repositoryName, &SExternalRepoCloudContainer::clientDescription};
    const std::string sentence = "Failed to SExternalRepoCloudContainer::Serialize. ";
    for (const auto field : fields)
    {
        SExternalRepoCloudContainer container;
        container.*field = "a\x01z";
        const std::string failure = failureText([&] { (void)container.Serialize(); });
        EXPECT_EQ(0U, failure.find(sentence)) << failure;
        EXPECT_LT(sentence.size(), failure.size());
    }
}

TEST(ExternalRepoCloudContainerRefusal, NoSecretReachesAFailureOrTheLog)
{
    const auto sink = std::make_shared<logging::memory_sink>();
    logging::set_sink(sink);
    std::string told;
    const auto attempt = [&](const std::string& text) {
        try
        {
            SExternalRepoCloudContainer::Unserialize(text);
            ADD_FAILURE() << "nothing was thrown";
        }
        catch (const exc::CRuntimeExc& failure)
        {
            told += failure.what();
            for (const auto& sentence : failure.trace())
                told += sentence;
        }
    };
    for (std::size_t missing = 0; missing < attributes.size(); ++missing)
    {
        if (attributes[missing].name.find("secret") == std::string::npos)
            attempt(document(without(attributes, missing)));
    }
    attempt(withValue("clientInfo.id", "x"));
    attempt(withValue("isObjectLockEnabled", "x"));
    attempt(document(attributes) + "<");
    attempt("<root " + std::string(Canary) + "=\"1\" " + Canary + "=\"2\"/>");

    SExternalRepoCloudContainer container;
    SAmazonS3SpecificParams params;
    params.credentials.secretAccessKey = std::string(Canary) + "\x02";
    container.s3Params = params;
    told += failureText([&] { (void)container.Serialize(); });
    EXPECT_EQ(std::string::npos, told.find(Canary)) << told;
    logging::set_sink(nullptr);
    EXPECT_TRUE(sink->entries().empty());
}

} // namespace
