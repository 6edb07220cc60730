#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "logs/gzip_source.h"
#include "pieces.h"
#include "support/expect_failure.h"
#include "support/gzip_bytes.h"
#include "support/temporary_folder.h"

namespace
{

using logs::GzipSource;
using zelmodel_test::allOf;
using zelmodel_test::failureText;
using zelmodel_test::gzipBytes;
using zelmodel_test::Pieces;
using namespace std::string_literals;

GzipSource sourceOf(std::vector<std::string> pieces)
{
    return GzipSource(std::make_unique<Pieces>(std::move(pieces)));
}

std::vector<std::string> byteByByte(const std::string& bytes)
{
    std::vector<std::string> pieces;
    for (const char byte : bytes)
        pieces.emplace_back(1, byte);
    return pieces;
}

// No two pieces of it are alike, so that compressing leaves many bytes.
std::string longText()
{
    std::string text;
    for (unsigned i = 0; text.size() < 600000; ++i)
        text += std::to_string(i * 2654435761U) + '\n';
    return text;
}

TEST(GzipSource, IsKnownByItsBeginning)
{
    EXPECT_TRUE(GzipSource::isGzip(gzipBytes("")));
    EXPECT_FALSE(GzipSource::isGzip(""));
    EXPECT_FALSE(GzipSource::isGzip("\x1f\x8b"));
    EXPECT_FALSE(GzipSource::isGzip("\x1f\x8b\x07"));
    EXPECT_FALSE(GzipSource::isGzip("2024-03-07"));
}

TEST(GzipSource, GivesTheText)
{
    const auto text = longText();
    const auto bytes = gzipBytes(text);
    auto whole = sourceOf({bytes});
    EXPECT_EQ(allOf(whole), text);
    EXPECT_EQ(whole.position(), bytes.size());
    auto slow = sourceOf(byteByByte(bytes));
    EXPECT_EQ(allOf(slow), text);
    auto empty = sourceOf({gzipBytes("")});
    EXPECT_EQ(allOf(empty), "");
}

TEST(GzipSource, ReadsSeveralPartsAndPassesOverPadding)
{
    const auto bytes = gzipBytes("one\n") + gzipBytes("") + gzipBytes("two\n");
    for (const auto& padding : {""s, "\0"s, std::string(5000, '\0')})
    {
        auto whole = sourceOf({bytes + padding});
        EXPECT_EQ(allOf(whole), "one\ntwo\n");
        auto slow = sourceOf(byteByByte(bytes + padding));
        EXPECT_EQ(allOf(slow), "one\ntwo\n");
    }
}

TEST(GzipSource, SomethingElseBehindIsRefused)
{
    const auto bytes = gzipBytes("one\n");
    const auto at = std::to_string(bytes.size());
    auto text = sourceOf({bytes + "text"});
    EXPECT_EQ(text.next(), "one\n");
    EXPECT_EQ(failureText([&] { text.next(); }),
              "Something else stands behind the compressed data, at byte " + at + ".");
    // Padding ends the data: nothing follows it.
    auto padded = sourceOf({bytes + "\0"s, bytes});
    EXPECT_EQ(padded.next(), "one\n");
    EXPECT_EQ(failureText([&] { padded.next(); }),
              "Something else stands behind the compressed data, at byte " + std::to_string(bytes.size() + 1) + ".");
}

TEST(GzipSource, EveryCutIsRefusedAfterWhatStandsBefore)
{
    const std::string text = "one\ntwo\nthree\n";
    const auto bytes = gzipBytes(text);
    for (std::size_t size = GzipSource::BytesToTell; size < bytes.size(); ++size)
    {
        auto source = sourceOf({bytes.substr(0, size)});
        std::string given;
        EXPECT_EQ(failureText([&] {
                      for (;;)
                          given += source.next();
                  }),
                  "The compressed data end too early, at byte " + std::to_string(size) + ".");
        EXPECT_EQ(text.compare(0, given.size(), given), 0);
    }
}

TEST(GzipSource, DamageIsToldAfterWhatStandsBefore)
{
    const auto text = longText();
    auto bytes = gzipBytes(text);
    bytes[bytes.size() - 6] = static_cast<char>(bytes[bytes.size() - 6] ^ 1);
    auto source = sourceOf({bytes});
    std::string given;
    EXPECT_EQ(failureText([&] {
                  for (;;)
                      given += source.next();
              }),
              "The compressed data are damaged before byte " + std::to_string(bytes.size() - 4) +
                  ": incorrect data check.");
    EXPECT_EQ(given, text);
    EXPECT_EQ(failureText([&] { source.next(); }).find("The compressed data are damaged"), 0U);
}

TEST(OpenSource, TellsByContentAndNotByName)
{
    const zelmodel_test::TemporaryFolder folder;
    files::InputFile compressed(folder.write("plain.log", gzipBytes("one\n")));
    EXPECT_EQ(allOf(*logs::openSource(compressed)), "one\n");
    files::InputFile plain(folder.write("log.gz", "two\n"));
    EXPECT_EQ(allOf(*logs::openSource(plain)), "two\n");
    files::InputFile empty(folder.write("empty.gz", ""));
    EXPECT_EQ(allOf(*logs::openSource(empty)), "");
}

} // namespace
