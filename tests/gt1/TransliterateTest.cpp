#include "gt1/Transliterate.h"

#include <gtest/gtest.h>

namespace gatewise::gt1 {
namespace {

TEST(Transliterate, WhatThePageHoldsStays) {
    const auto text =
        converted("S\xC3\xA3o Paulo \xE2\x80\x93 \xC5\xA0\xE2\x82\xAC"); // a tilde, dash, S caron, euro
    EXPECT_EQ(text.text, "S\xE3o Paulo \x96 \x8A\x80");
    EXPECT_FALSE(text.changed);
    EXPECT_FALSE(text.broken);
}

TEST(Transliterate, LettersOutsideThePageLoseTheirMarks) {
    const auto text = converted("\xC5\x81\xC3\xB3"
                                "d\xC5\xBA \xC4\xB0stanbul Bra\xC8\x99ov"); // Lodz, Istanbul, Brasov
    EXPECT_EQ(text.text, "L\xF3"
                         "dz Istanbul Brasov");
    EXPECT_TRUE(text.changed);
}

TEST(Transliterate, VowelsOfTwoMarksLoseBoth) {
    // Ha Noi, Hue and a horn, with their marks
    EXPECT_EQ(converted("H\xC3\xA0 N\xE1\xBB\x99i").text, "H\xE0 Noi");
    EXPECT_EQ(converted("Hu\xE1\xBA\xBF \xE1\xBA\xA0 \xE1\xBB\xB9").text, "Hue A y");
    EXPECT_EQ(converted("\xC6\xA0\xC6\xB0").text, "Ou");
    EXPECT_EQ(converted("\xEF\xAC\x81").text, "fi");
}

TEST(Transliterate, MarksOfTheirOwnGoAndOtherWritingBecomesQuestionMarks) {
    EXPECT_EQ(converted("e\xCC\x81").text, "e");
    const auto text = converted("\xE6\x9D\xB1\xE4\xBA\xAC");
    EXPECT_EQ(text.text, "??");
    EXPECT_TRUE(text.changed);
}

TEST(Transliterate, OtherBytesAreNoText) {
    EXPECT_TRUE(converted("abc\xFF").broken);
    EXPECT_TRUE(converted("\xC3").broken);
    EXPECT_TRUE(converted("\xC0\xAF").broken);         // overlong
    EXPECT_TRUE(converted("\xED\xA0\x80").broken);     // half of a pair
    EXPECT_TRUE(converted("\xF4\x90\x80\x80").broken); // past the last character
}

} // namespace
} // namespace gatewise::gt1
