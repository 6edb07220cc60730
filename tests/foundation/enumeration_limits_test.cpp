#include <zelmodel/enumerations.h>

#include <limits>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

#include "enums/sweep_case.h"
#include "support/expect_failure.h"

using namespace zelplatform::model;
using sweep::writer;
using zelmodel_test::failureText;
using zelplatform::model::structs::gfs::ESennightOfMonth;

namespace
{

constexpr int Greatest = std::numeric_limits<int>::max();
constexpr int Least = std::numeric_limits<int>::min();

TEST(EnumerationLimitsTest, RefusesNumbersFarFromEveryRow)
{
    const struct
    {
        std::function<std::string(int)> write;
        std::string before;
        std::string after;
    } conversions[] = {
        {writer(&BackupRepositoryType::toStr), "Unable to convert BackupRepositoryType::type [", "] to string."},
        {writer(&BackupRepositoryType::getDisplayName), "Unable to convert BackupRepositoryType::type [",
         "] to display name."},
        {writer(&JobSessionState::toStr), "Unable to convert SessionStatus to string. Unknown state: [", "]."},
        {writer(&JobSessionState::toUserFrendlyStr), "Unable to convert SessionStatus to string. Unknown state: [",
         "]."},
        {writer(&JobSessionType::toStr), "Unable to convert SessionType to string. Unknown state: [", "]."},
        {writer(&JobSessionType::toLogFolderName), "Unable to convert SessionType to string. Unknown state: [", "]."},
        {writer(&JobSessionType::toUserFriendlyStr), "Unable to convert SessionType to string. Unknown state: [", "]."},
        {writer(&KbBlockSize::toStr), "Unable to convert KbBlockSize::type [", "] to string."},
        {[](int value) { return std::to_string(KbBlockSize::toKbytes(static_cast<KbBlockSize::type>(value))); },
         "Unexpected block size value [", "]."},
        {[](int value) { return std::to_string(KbBlockSize::toBytes(static_cast<KbBlockSize::type>(value))); },
         "Unexpected block size value [", "]."},
        {writer(&OibAlgorithm::toStr), "Unable to convert OibAlgorithm::type [", "] to string."},
        {writer(&OibAlgorithm::getDisplayStr), "Unable to convert OibAlgorithm::type [", "] to string."},
        {writer(&ECredentialType::ToStr), "Unable to convert credential type [", "] to string."},
        {writer(&ESennightOfMonth::toLongStr), "Cannot convert ESennightOfMonth value [", "] to string."},
    };
    // The rows again, if a number were cut to 8 or 16 bits, and the ends of the range.
    for (const int value : {Greatest, Greatest - 1, Least, Least + 1, 256, 257, 262, -255, -250, 65537, 65542, 1 << 30})
    {
        for (const auto& [write, before, after] : conversions)
            EXPECT_EQ(failureText([&, &action = write] { action(value); }), before + std::to_string(value) + after);
        const auto number = std::to_string(value);
        EXPECT_EQ(failureText([&] { ESnapshotMode::ToString(static_cast<ESnapshotMode::type>(value)); }),
                  "ESnapshotMode: Failed to convert [" + number + "] to string. Unexpected snapshot mode: [" + number +
                      "]");
        EXPECT_EQ(
            failureText([&] { EDbBackupEncryptionState::ToStr(static_cast<EDbBackupEncryptionState::type>(value)); }),
            "Failed to convert EDbBackupEncryptionState[" + number +
                "] to string Unknown EDbBackupEncryptionState: " + number);
        EXPECT_EQ(failureText([&] { OibAlgorithm::convertToType(static_cast<OibAlgorithm::type>(value)); }),
                  "Not supported.");
        EXPECT_FALSE(JobSessionState::IsSessionFinished(static_cast<JobSessionState::type>(value)));
    }
}

TEST(EnumerationLimitsTest, KeepsTheSentencesOfAWrappedRefusalApart)
{
    using Trace = std::vector<std::string>;
    const struct
    {
        std::function<void()> action;
        Trace trace;
    } rows[] = {
        {[] { ESnapshotMode::FromString("snap"); },
         {"ESnapshotMode: Failed to convert from string [snap].", "Unknown snapshot mode string: [snap]."}},
        {[] { ESnapshotMode::ToString(static_cast<ESnapshotMode::type>(3)); },
         {"ESnapshotMode: Failed to convert [3] to string.", "Unexpected snapshot mode: [3]"}},
        {[] { EDbBackupEncryptionState::FromStr("x"); },
         {"Failed to convert string[x] to EDbBackupEncryptionState.", "Unknown string: x"}},
        {[] { EDbBackupEncryptionState::ToStr(static_cast<EDbBackupEncryptionState::type>(3)); },
         {"Failed to convert EDbBackupEncryptionState[3] to string", "Unknown EDbBackupEncryptionState: 3"}},
        {[] { JobSessionState::toStr(static_cast<JobSessionState::type>(2)); },
         {"Unable to convert SessionStatus to string.", "Unknown state: [2]."}},
        {[] { JobSessionType::fromStr("x"); },
         {"Unable to convert string [x] to SessionType.", "Unknown input string: [x]."}},
        {[] { ParseBObjectType("x"); },
         {"Unable to convert string [x] to EBObjectType::type.", "Unable to convert string [x] to [int]."}},
        // These three are not wrapped.
        {[] { KbBlockSize::fromStr("x"); }, {"Unable to convert string [x] to KbBlockSize::type."}},
        {[] { BackupRepositoryType::fromStr("x"); }, {"Unable to convert string [x] to BackupRepositoryType::type."}},
        {[] { OibAlgorithm::fromStr("x"); }, {"Unable to convert string [x] to OibAlgorithm::type."}},
    };
    for (const auto& [action, trace] : rows)
    {
        try
        {
            action();
            ADD_FAILURE() << "nothing was thrown for " << trace.front();
        }
        catch (const exc::CRuntimeExc& failure)
        {
            EXPECT_EQ(failure.trace(), trace);
        }
    }
}

TEST(EnumerationLimitsTest, WritesAndReadsEveryObjectTypeAroundTheCustomOnes)
{
    for (int value = -300; value <= 600; ++value)
    {
        const auto number = std::to_string(value);
        const bool isCustom = value >= 100 && value <= 199;
        const auto text = value == 1 ? "VM" : isCustom ? "ExternalPlatformValue" + number : number;
        EXPECT_EQ(ToString(static_cast<EBObjectType>(value)), text);
        EXPECT_EQ(ParseBObjectType(text), value);
        EXPECT_EQ(ParseBObjectType(number), value);
        EXPECT_EQ(IsCustomValue(static_cast<EBObjectType>(value)), isCustom);
    }
    EXPECT_EQ(ParseBObjectType("ExternalPlatformValue0150"), 150);
    EXPECT_EQ(ParseBObjectType("0000000000000001"), VM);
}

TEST(EnumerationLimitsTest, NamesThePartOfAnObjectTypeThatIsNoNumber)
{
    const std::pair<std::string, std::string> rows[] = {
        // A number out of the custom range sends the whole text to the second attempt.
        {"ExternalPlatformValue200", "ExternalPlatformValue200"},
        {"ExternalPlatformValue-150", "ExternalPlatformValue-150"},
        {"ExternalPlatformValue1", "ExternalPlatformValue1"},
        // What follows the prefix is no 32-bit number: there is no second attempt.
        {"ExternalPlatformValueVM", "VM"},
        {"ExternalPlatformValue 150", " 150"},
        {"ExternalPlatformValue150 ", "150 "},
        {"ExternalPlatformValue+150", "+150"},
        {"ExternalPlatformValue4294967446", "4294967446"},
        {"ExternalPlatformValueExternalPlatformValue150", "ExternalPlatformValue150"},
        {" ExternalPlatformValue150", " ExternalPlatformValue150"},
        {"VM ", "VM "},
        {"+1", "+1"},
        {"0x1", "0x1"},
        {"-2147483649", "-2147483649"},
        {"18446744073709551617", "18446744073709551617"},
    };
    for (const auto& [text, number] : rows)
        EXPECT_EQ(failureText([&, &input = text] { ParseBObjectType(input); }),
                  "Unable to convert string [" + text + "] to EBObjectType::type. Unable to convert string [" + number +
                      "] to [int].");
}

} // namespace
