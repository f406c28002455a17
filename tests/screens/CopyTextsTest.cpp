#include "pages/CopyTexts.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

TEST(CopyTexts, CellsWithoutWordsKeepTheirColumns) {
    Forms forms;
    ListView& list = forms.FlyForm.PlanList;
    EXPECT_EQ(rowText(list), "");
    list.rows.push_back({{}, {" ", " FIXON ", "", "5000"}, false});
    EXPECT_EQ(rowText(list), "") << "no row is picked";
    list.picked = 0;
    EXPECT_EQ(rowText(list), "\tFIXON\t\t5000");
    EXPECT_EQ(copyText(forms, forms.FlyForm), "\tFIXON\t\t5000");
}

TEST(CopyTexts, TheBoardIsItsHeadingItsHeadsAndTheRowsWithAFlight) {
    Forms forms;
    auto& main = forms.MainForm;
    main.header_LABEL.text = "FLIGHT INFORMATION\nPage 1 of 1";
    main.fltnum_LABEL(1).text = " QA 12";
    main.city_LABEL(1).text = " Chicago";
    main.time_LABEL(1).text = "0715";
    main.status_LABEL(1).text = "";
    EXPECT_EQ(boardText(main), "FLIGHT INFORMATION\nPage 1 of 1\n"
                               "FLIGHT\tDEPARTING TO\tTIME\tSTATUS\n"
                               "QA 12\tChicago\t0715\t\n");
}

TEST(CopyTexts, APassWithoutAFlightIsNothing) {
    Forms forms;
    auto& main = forms.MainForm;
    EXPECT_EQ(passText(main), "");
    main.fltLABEL_1.text = "QA12";
    main.seatLABEL_1.text = "15A";
    const std::string text = passText(main);
    EXPECT_NE(text.find("Flight\tQA12\n"), std::string::npos) << text;
    EXPECT_NE(text.find("Seat\t15A\n"), std::string::npos) << text;
}

} // namespace
} // namespace gatewise
