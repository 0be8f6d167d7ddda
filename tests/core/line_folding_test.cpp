#include "gnl_ofstream.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>
#include <string>

namespace {

constexpr std::size_t buffer_size = 524288;

std::string written(std::string const & text, unsigned limit, char comment_char)
{
    std::ostringstream file;
    GNL_STREAMBUF buffer;
    buffer.set_char_limit(limit);
    buffer.set_comment_char(comment_char);
    buffer.open(&file);
    EXPECT_EQ(buffer.sputn(text.data(), static_cast<std::streamsize>(text.size())),
              static_cast<std::streamsize>(text.size()));
    EXPECT_TRUE(buffer.close(true));
    return file.str();
}

/// The rule, byte by byte.
std::string folded_by_rule(std::string const & text, unsigned limit, char comment_char)
{
    std::string out;
    for (std::size_t start = 0; start < text.size(); start += buffer_size) {
        unsigned column = 0;
        bool seen_first = false;
        bool in_comment = false;
        for (char const c : text.substr(start, buffer_size)) {
            if (comment_char != '\n') {
                in_comment = in_comment || (seen_first && c == comment_char);
                seen_first = seen_first || (column == 0 && c == comment_char);
            }
            if (c == '\n') {
                column = 0;
                seen_first = in_comment = false;
            } else if (!in_comment && ++column > limit && std::string("\t &,)(").find(c) != std::string::npos) {
                out += '\n';
                column = 1;
            }
            out += c;
        }
    }
    return out;
}

TEST(LineFolding, BreaksBeforeASafeCharacterPastTheLimit)
{
    EXPECT_EQ(written("abcdef ghij klm n", 5, '\n'), "abcdef\n ghij\n klm n");
    EXPECT_EQ(written("abcde ghi", 5, '\n'), "abcde\n ghi");
    EXPECT_EQ(written("abcd efgh", 5, '\n'), "abcd efgh"); // no safe character stands past the limit
    for (char const c : std::string("\t &,)("))
        EXPECT_EQ(written(std::string("abcdef") + c + "g", 5, '\n'), std::string("abcdef\n") + c + "g");
}

TEST(LineFolding, ALineWithoutASafeCharacterStaysAsLongAsItIs)
{
    std::string const line(3000, 'x');
    EXPECT_EQ(written(line + "\n" + line, 2048, '/'), line + "\n" + line);
}

TEST(LineFolding, NoLimitWritesAsItIs)
{
    std::string const line = std::string(3000, 'x') + " y";
    EXPECT_EQ(written(line, 0, '/'), line);
}

TEST(LineFolding, ACommentLineIsNeverFolded)
{
    std::string const words = std::string(2990, 'x') + " y z";
    EXPECT_EQ(written("--" + words, 2048, '-'), "--" + words);
    EXPECT_EQ(written("//" + words, 2048, '/'), "//" + words);
    EXPECT_EQ(written("-" + words, 2048, '-'), "-" + std::string(2990, 'x') + "\n y z");
    EXPECT_EQ(written("--" + words, 2048, '\n'), "--" + std::string(2990, 'x') + "\n y z");
}

TEST(LineFolding, AnIndentedCommentIsFoldedLikeCode)
{
    std::string const word(2990, 'x');
    EXPECT_EQ(written(" --" + word + " y", 2048, '-'), " --" + word + "\n y");
}

TEST(LineFolding, ACommentMarkLaterInTheLineEndsTheFolding)
{
    EXPECT_EQ(written("-aaaa bb c-d e f g", 3, '-'), "-aaaa\n bb\n c-d e f g");
}

TEST(LineFolding, EachLineStartsAnew)
{
    EXPECT_EQ(written("--aaaa b\naaaa b\n-aaaa b\n", 3, '-'), "--aaaa b\naaaa\n b\n-aaaa\n b\n");
}

TEST(LineFolding, TheColumnStartsAnewAtEachFlush)
{
    std::string const first(buffer_size - 4, '\n');
    EXPECT_EQ(written(first + "aaaabbb c", 5, '\n'), first + "aaaabbb c");
    EXPECT_EQ(written(first + "aaaabbbbb c", 5, '\n'), first + "aaaabbbbb\n c");
    EXPECT_EQ(written(first + "--aabbbbb c", 5, '-'), first + "--aabbbbb\n c");
}

TEST(LineFolding, EqualsTheRuleOnAnyText)
{
    auto const given = std::getenv("LBX_TEST_SEED");
    auto const seed = given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : 20240607U;
    std::cout << "seed " << seed << " (LBX_TEST_SEED)\n";
    std::mt19937 random(seed);
    std::string const alphabet = "abc--// ,(&)\t\n\r\xff";
    for (int round = 0; round < 54; ++round) {
        unsigned const limit = 1 + static_cast<unsigned>(random() % 40);
        std::size_t const size = round < 50 ? random() % 2000 : buffer_size + random() % (2 * buffer_size);
        std::size_t const newlines = 1 + random() % 80;
        std::string text;
        while (text.size() < size)
            text += random() % newlines == 0 ? '\n' : alphabet[random() % alphabet.size()];
        for (char const comment_char : {'-', '/', '\n'})
            ASSERT_TRUE(written(text, limit, comment_char) == folded_by_rule(text, limit, comment_char))
                << "round " << round << ", limit " << limit;
    }
}

TEST(LineFolding, SinglePiecesAreBufferedLikeLargeOnes)
{
    std::ostringstream file;
    GNL_STREAMBUF buffer;
    buffer.open(&file);
    buffer.set_char_limit(5);
    for (std::size_t i = 0; i < buffer_size; ++i)
        buffer.sputc('x');
    EXPECT_EQ(file.str().size(), 0U); // full, and nothing more has come
    buffer.sputc('y');
    EXPECT_EQ(file.str().size(), buffer_size);
    EXPECT_EQ(buffer.pubsync(), 0);
    EXPECT_EQ(file.str().size(), buffer_size + 1);
}

TEST(LineFolding, AFailedFileIsToldAtOnceAndAtTheEnd)
{
    std::ostringstream file;
    GNL_STREAMBUF buffer;
    EXPECT_EQ(buffer.sputc('x'), std::char_traits<char>::eof());
    EXPECT_EQ(buffer.sputn("x", 1), 0);
    buffer.open(&file);
    EXPECT_TRUE(buffer.is_open());
    buffer.sputn("text", 4);
    file.setstate(std::ios::badbit);
    EXPECT_EQ(buffer.pubsync(), -1);
    EXPECT_FALSE(buffer.close(false));
    EXPECT_FALSE(buffer.is_open());
    EXPECT_EQ(buffer.sputc('x'), std::char_traits<char>::eof());
}

} // namespace
