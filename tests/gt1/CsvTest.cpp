#include "gt1/Csv.h"

#include <gtest/gtest.h>

namespace gatewise::gt1 {
namespace {

using Cells = std::vector<std::string>;

TEST(Csv, FieldsAndLines) {
    const auto file = parseCsv("a,b,c\n1,,3\n");
    ASSERT_EQ(file.rows.size(), 2U);
    EXPECT_EQ(file.rows[0].cells, (Cells{"a", "b", "c"}));
    EXPECT_EQ(file.rows[1].cells, (Cells{"1", "", "3"}));
    EXPECT_EQ(file.rows[1].line, 2);
    EXPECT_TRUE(file.badQuotes.empty());
}

TEST(Csv, QuotesHoldCommasQuotesAndLineEnds) {
    const auto file = parseCsv("\"a,b\",\"say \"\"hi\"\"\"\n\"two\nlines\",x\nlast,y");
    ASSERT_EQ(file.rows.size(), 3U);
    EXPECT_EQ(file.rows[0].cells, (Cells{"a,b", "say \"hi\""}));
    EXPECT_EQ(file.rows[1].cells, (Cells{"two\nlines", "x"}));
    EXPECT_EQ(file.rows[2].cells, (Cells{"last", "y"}));
    EXPECT_EQ(file.rows[2].line, 4);
}

TEST(Csv, CarriageReturnsByteOrderMarkAndEmptyLines) {
    const auto file = parseCsv("\xEF\xBB\xBF"
                               "a,b\r\n\r\n1,2\r\n");
    ASSERT_EQ(file.rows.size(), 2U);
    EXPECT_EQ(file.rows[0].cells, (Cells{"a", "b"}));
    EXPECT_EQ(file.rows[1].cells, (Cells{"1", "2"}));
    EXPECT_EQ(file.rows[1].line, 3);
}

TEST(Csv, AnEmptyFieldAtTheEndCounts) {
    EXPECT_EQ(parseCsv("a,\n").rows[0].cells, (Cells{"a", ""}));
    EXPECT_EQ(parseCsv("a,").rows[0].cells, (Cells{"a", ""}));
    EXPECT_EQ(parseCsv("a,\"\"").rows[0].cells, (Cells{"a", ""}));
}

TEST(Csv, QuotesOutOfPlaceAreFoundWithTheirLine) {
    const auto open = parseCsv("a\n\"never closed\nb\n");
    ASSERT_EQ(open.badQuotes.size(), 1U);
    EXPECT_EQ(open.badQuotes[0].line, 2);
    EXPECT_EQ(open.badQuotes[0].expected, "a closing quote");
    const auto behind = parseCsv("a\nb\n\"x\"y,z\n");
    ASSERT_EQ(behind.badQuotes.size(), 1U);
    EXPECT_EQ(behind.badQuotes[0].line, 3);
    EXPECT_EQ(behind.badQuotes[0].expected, "a comma or the end of the line behind a closing quote");
}

TEST(Csv, ALineWithAQuoteOutOfPlaceHidesNoOther) {
    const auto file = parseCsv("a,b\n1,x\"y\r\n2,z\n3\"4,w\n5,v\n");
    ASSERT_EQ(file.badQuotes.size(), 2U);
    EXPECT_EQ(file.badQuotes[0].line, 2);
    EXPECT_EQ(file.badQuotes[0].column, 2);
    EXPECT_EQ(file.badQuotes[1].line, 4);
    EXPECT_EQ(file.badQuotes[1].column, 1);
    ASSERT_EQ(file.rows.size(), 3U);
    EXPECT_EQ(file.rows[1].cells, (Cells{"2", "z"}));
    EXPECT_EQ(file.rows[2].cells, (Cells{"5", "v"}));
    EXPECT_EQ(file.rows[2].line, 5);
}

TEST(Csv, WrittenLinesReadBack) {
    const Cells cells{"plain", "com,ma", "quo\"te", "li\nne", ""};
    EXPECT_EQ(csvLine(cells), "plain,\"com,ma\",\"quo\"\"te\",\"li\nne\",\n");
    EXPECT_EQ(parseCsv(csvLine(cells)).rows[0].cells, cells);
}

} // namespace
} // namespace gatewise::gt1
