#include "platform/Text.h"
#include "platform/Utf8.h"

#include <gtest/gtest.h>
#include <vector>

namespace gatewise {
namespace {

TEST(Trimmed, TakesBlanksAloneOnBothSides) {
    EXPECT_EQ(trimmed("  a b "), "a b");
    EXPECT_EQ(trimmed("\ta\t"), "\ta\t");
    EXPECT_EQ(trimmed("   "), "");
    EXPECT_EQ(trimmed(""), "");
}

TEST(FixedText, IsPaddedAndCut) {
    FixedText<4> text = "AB";
    EXPECT_EQ(text.view(), "AB  ");
    EXPECT_EQ(text.trimmed(), "AB");
    text = "ABCDEF";
    EXPECT_EQ(text.view(), "ABCD");
    text = std::string_view();
    EXPECT_EQ(text.view(), "    ");
    EXPECT_EQ(FixedText<4>(), text);
    EXPECT_FALSE(FixedText<4>(" AB") == FixedText<4>("AB "));
}

TEST(Case, FoldsTheLettersOfThePage) {
    EXPECT_EQ(upperCase("az09 \xE9\xFF\x9A\x9C\x9E"), "AZ09 \xC9\x9F\x8A\x8C\x8E");
    EXPECT_EQ(lowerCase("AZ09 \xC9\x9F\x8A\x8C\x8E"), "az09 \xE9\xFF\x9A\x9C\x9E");
    EXPECT_EQ(upperCase("\xF7\xD7\xDF"), "\xF7\xD7\xDF"); // signs, and a letter without a capital
    EXPECT_EQ(lowerCase("\xF7\xD7\xDF"), "\xF7\xD7\xDF");
    for (int c = 0; c < 256; ++c) {
        const char lower = lowerCase(static_cast<char>(c));
        EXPECT_EQ(lowerCase(upperCase(lower)), lower) << c;
    }
}

TEST(EqualNoCase, ComparesWholeTexts) {
    EXPECT_TRUE(equalNoCase("Main", "MAIN"));
    EXPECT_FALSE(equalNoCase("Main", "Mains"));
    EXPECT_TRUE(equalNoCase("", ""));
}

TEST(ContainsNoCase, FindsAPartAnywhere) {
    EXPECT_TRUE(containsNoCase("Hartsfield", "FIELD"));
    EXPECT_TRUE(containsNoCase("Gen\xE8ve", "N\xC8V"));
    EXPECT_FALSE(containsNoCase("Hart", "Hartsfield"));
    EXPECT_TRUE(containsNoCase("", ""));
    EXPECT_TRUE(containsNoCase("a", ""));
    EXPECT_FALSE(containsNoCase("", "a"));
}

TEST(LessFolded, OrdersLettersWithoutCase) {
    EXPECT_TRUE(lessFolded("abc", "ABD"));
    EXPECT_FALSE(lessFolded("abc", "ABC"));
    EXPECT_FALSE(lessFolded("ABC", "abc"));
    EXPECT_TRUE(lessFolded("Z", "_"));
    EXPECT_TRUE(lessFolded("ab", "abc"));
    EXPECT_TRUE(lessFolded("z", "\xE0"));
}

TEST(ReplaceAll, ReplacesEveryOccurrence) {
    EXPECT_EQ(replaceAll("1,2,3", ",", "."), "1.2.3");
    EXPECT_EQ(replaceAll("aaa", "aa", "a"), "aa");
    EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(replaceAll("", "a", "x"), "");
}

TEST(Utf8, EveryByteOfThePageComesBack) {
    for (int c = 0; c < 256; ++c) {
        const std::string text(1, static_cast<char>(c));
        EXPECT_EQ(textFromUtf8(utf8FromText(text)), text) << c;
        EXPECT_EQ(exactTextFromUtf8(utf8FromText(text)), text) << c;
    }
    EXPECT_EQ(utf8FromText("\x80"), "\xE2\x82\xAC");
    EXPECT_EQ(utf8FromText("\xE9"), "\xC3\xA9");
    EXPECT_EQ(utf8FromText("\x81"), "\xC2\x81");
}

TEST(Utf8, CharactersOutsideThePageBecomeQuestionMarks) {
    EXPECT_EQ(textFromUtf8("a\xC5\x82z\xF0\x9F\x98\x80"), "a?z?");
    EXPECT_FALSE(exactTextFromUtf8("a\xC5\x82z"));
}

TEST(Utf8, EveryCharacterComesBack) {
    for (char32_t point = 0; point <= 0x10FFFF; ++point) {
        std::string text = "x";
        appendUtf8(text, point);
        char32_t read = 0;
        ASSERT_EQ(decodeUtf8(text, 1, read), text.size() - 1);
        ASSERT_EQ(read, point >= 0xD800 && point <= 0xDFFF ? kReplacement : point);
    }
}

TEST(Utf8, LengthsChangeAtTheirBorders) {
    const auto written = [](char32_t point) {
        std::string text;
        appendUtf8(text, point);
        return text;
    };
    EXPECT_EQ(written(0x7F), "\x7F");
    EXPECT_EQ(written(0x80), "\xC2\x80");
    EXPECT_EQ(written(0x7FF), "\xDF\xBF");
    EXPECT_EQ(written(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(written(0xFFFF), "\xEF\xBF\xBF");
    EXPECT_EQ(written(0x10000), "\xF0\x90\x80\x80");
    EXPECT_EQ(written(0x10FFFF), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(written(0x110000), "\xEF\xBF\xBD");
}

TEST(Utf8, MalformedBytesBecomeQuestionMarksOneByOne) {
    EXPECT_EQ(textFromUtf8("\xC3"), "?");
    EXPECT_FALSE(exactTextFromUtf8("\xC3"));
    EXPECT_EQ(textFromUtf8("\x80\xFF"), "??");
    EXPECT_EQ(textFromUtf8("\xC0\x80"), "??");           // longer than needed
    EXPECT_EQ(textFromUtf8("\xED\xA0\x80"), "???");      // half of a pair
    EXPECT_EQ(textFromUtf8("\xF4\x90\x80\x80"), "????"); // beyond the last character
    EXPECT_EQ(textFromUtf8("\xE2\x82"), "??");
}

TEST(ParseInteger, TakesWholeTextsOnly) {
    for (const auto& [text, wanted] : std::vector<std::pair<std::string, int>>{
             {"12", 12}, {" -7 ", -7}, {"+5", 5}, {"0", 0}, {"2147483647", 2147483647}, {"007", 7}}) {
        EXPECT_EQ(parseInteger(text), wanted) << text;
    }
    for (const auto* text : {"", " ", "x", "1x", "1 2", "1.5", "2147483648", "+-5", "+", "-", "1e3"})
        EXPECT_FALSE(parseInteger(text)) << text;
}

TEST(LeadingNumber, TakesTheNumberThatATextBeginsWith) {
    EXPECT_EQ(leadingNumber("0735"), 735);
    EXPECT_EQ(leadingNumber(" 12 miles"), 12);
    EXPECT_EQ(leadingNumber("-3.5"), -3.5);
    EXPECT_EQ(leadingNumber("+4"), 4);
    EXPECT_EQ(leadingNumber("miles"), 0);
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("nan"), 0);
    EXPECT_EQ(leadingNumber("inf"), 0);
    EXPECT_EQ(leadingNumber("1e999"), 0);
}

} // namespace
} // namespace gatewise
