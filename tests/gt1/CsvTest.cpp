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
    EXPECT_EQ(file.badLine, 0);
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
    EXPECT_EQ(open.badLine, 2);
    EXPECT_EQ(open.expected, "a closing quote");
    const auto behind = parseCsv("a\nb\n\"x\"y,z\n");
    EXPECT_EQ(behind.badLine, 3);
    EXPECT_EQ(behind.expected, "a comma or the end of the line behind a closing quote");
    EXPECT_EQ(parseCsv("a\nb\"c\n").badLine, 2);
}

TEST(Csv, WrittenLinesReadBack) {
    const Cells cells{"plain", "com,ma", "quo\"te", "li\nne", ""};
    EXPECT_EQ(csvLine(cells), "plain,\"com,ma\",\"quo\"\"te\",\"li\nne\",\n");
    EXPECT_EQ(parseCsv(csvLine(cells)).rows[0].cells, cells);
}

} // namespace
} // namespace gatewise::gt1
