#include "drive/Json.h"
#include "drive/Arguments.h"
#include "drive/FileText.h"

#include <gtest/gtest.h>

#include <limits>

namespace gatewise::drive {

namespace {

template<class T> std::string written(const T& value) {
    JsonWriter json;
    write(json, value);
    return json.line();
}

struct Row {
    FixedText<4> code = "AB";
    std::int16_t flag = -1;
    static constexpr void fields(auto& r, auto&& f) { f("code", r.code), f("flag", r.flag); }
};

} // namespace

TEST(Json, TextsAreUtf8AndEscaped) {
    EXPECT_EQ(written(std::string("caf\xE9 \x80")), "\"caf\u00E9 \u20AC\"");
    EXPECT_EQ(written(std::string("a\"b\\c\r\n\t\x01")), R"("a\"b\\c\r\n\t\u0001")");
    EXPECT_EQ(written(std::string()), "\"\"");
}

TEST(Json, FieldsKeepTheirWidth) {
    EXPECT_EQ(written(FixedText<4>("AB")), "\"AB  \"");
}

TEST(Json, NumbersAreShortest) {
    EXPECT_EQ(written(0.1F), "0.1");
    EXPECT_EQ(written(0.1), "0.1");
    EXPECT_EQ(written(829.5F), "829.5");
    EXPECT_EQ(written(std::int16_t{-1}), "-1");
    EXPECT_EQ(written(true), "true");
    EXPECT_EQ(written(std::numeric_limits<double>::infinity()), "null");
    EXPECT_EQ(written(std::numeric_limits<float>::quiet_NaN()), "null");
}

TEST(Json, ExactSinglesReadBackAsTheSameValue) {
    JsonWriter json;
    json.exactSingles = true;
    write(json, std::vector<float>{0.1F, 40.639801F, 16777216.0F, -73.771385F, 1e20F});
    EXPECT_EQ(json.line(), "[0.1,40.6398,16777216,-73.771385,1e+20]");
}

TEST(FileText, IsUtf8OrWindows1252OrHex) {
    const auto shown = [](std::string_view bytes) {
        JsonWriter json;
        writeFile(json, viewOf(bytes));
        return json.line();
    };
    EXPECT_EQ(shown("a\tb\r\n"), R"({"text":"a\tb\r\n","encoding":"UTF-8"})");
    EXPECT_EQ(shown(""), R"({"text":"","encoding":"UTF-8"})");
    EXPECT_EQ(shown("caf\xC3\xA9"), "{\"text\":\"caf\u00E9\",\"encoding\":\"UTF-8\"}");
    EXPECT_EQ(shown("caf\xE9 \x80"), "{\"text\":\"caf\u00E9 \u20AC\",\"encoding\":\"Windows-1252\"}");
    EXPECT_EQ(shown("caf\xE9\x81"), R"({"hex":"636166e981"})");
    EXPECT_EQ(shown(std::string_view("a\0b", 3)), R"({"hex":"610062"})");
    EXPECT_EQ(shown("\x7F"), R"({"hex":"7f"})");
}

TEST(Json, RecordsAndLists) {
    EXPECT_EQ(written(std::vector<Row>(2)), R"([{"code":"AB  ","flag":-1},{"code":"AB  ","flag":-1}])");
    EXPECT_EQ(written(std::vector<Row>()), "[]");
    JsonWriter json;
    writeList(json, std::vector<int>{1, 2, 3}, 2);
    EXPECT_EQ(json.line(), "[1,2]");
    JsonWriter none;
    writeList(none, std::vector<int>{1, 2, 3}, 0);
    EXPECT_EQ(none.line(), "[]");
}

TEST(Arguments, WordsEndAtOneBlank) {
    std::string_view rest = "type  two blanks ";
    EXPECT_EQ(takeWord(rest), "type");
    EXPECT_EQ(rest, " two blanks ");
    EXPECT_EQ(takeWord(rest), "");
}

TEST(Arguments, TextsAreTakenAsTheyStandOrAsJson) {
    EXPECT_EQ(textArgument("a b "), "a b ");
    EXPECT_EQ(textArgument("caf\u00E9"), "caf\xE9");
    EXPECT_EQ(textArgument(R"("caf\u00e9 \"\\\n")"), "caf\xE9 \"\\\n");
    EXPECT_EQ(textArgument(R"("\ud83d\ude00")"), "?"); // no such character in the page
    EXPECT_EQ(textArgument(""), "");
    EXPECT_EQ(textArgument(R"("open)"), std::nullopt);
    EXPECT_EQ(textArgument(R"("closed" behind)"), std::nullopt);
    EXPECT_EQ(textArgument(R"("\q")"), std::nullopt);
    EXPECT_EQ(textArgument(R"("\u12")"), std::nullopt);
}

TEST(Arguments, ListsMixWordsAndStrings) {
    std::string_view rest = R"("a b" c "" d)";
    EXPECT_EQ(takeArgument(rest), "a b");
    EXPECT_EQ(takeArgument(rest), "c");
    EXPECT_EQ(takeArgument(rest), "");
    EXPECT_EQ(takeArgument(rest), "d");
    EXPECT_TRUE(rest.empty());
    std::string_view broken = R"("a"b)";
    EXPECT_EQ(takeArgument(broken), std::nullopt);
}

TEST(Arguments, NumbersAreWholeTexts) {
    EXPECT_EQ(integerArgument("-12"), -12);
    EXPECT_EQ(integerArgument("+12"), 12);
    EXPECT_EQ(integerArgument("12 "), std::nullopt);
    EXPECT_EQ(integerArgument("1.0"), std::nullopt);
    EXPECT_EQ(integerArgument(""), std::nullopt);
    EXPECT_EQ(integerArgument("99999999999999999999"), std::nullopt);
    EXPECT_EQ(numberArgument("-122.31"), -122.31);
    EXPECT_EQ(numberArgument("1e3"), 1000.0);
    EXPECT_EQ(numberArgument("1,5"), std::nullopt);
}

} // namespace gatewise::drive
