#include "logbook/LogListing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gatewise {
namespace {

LogRecord entry() {
    LogRecord r;
    r.date = 37422; // 15 June 2002
    r.departureIcao = "KATL";
    r.departureName = "Hartsfield Intl";
    r.arrivalIcao = "LFPG";
    r.arrivalName = "Charles de Gaulle";
    r.aircraft = "Boeing 767";
    r.airline = "Quillmark Air Lines";
    r.flightNumber = 12;
    r.scheduledDeparture = r.actualDeparture = 735;
    r.scheduledArrival = 2105;
    r.actualArrival = 2110;
    r.dayHours = 5.5F;
    r.nightHours = 2.1F;
    r.instrumentHours = 1.0F;
    r.comments = "Said \"caf\xE9\", smooth";
    return r;
}

TEST(LogCsv, HasAHeaderAndALineForEachEntry) {
    EXPECT_EQ(
        logCsv({entry()}),
        "date,departure,departure_name,arrival,arrival_name,aircraft,airline,flight,scheduled_departure,"
        "scheduled_arrival,actual_departure,actual_arrival,day_hours,night_hours,instrument_hours,"
        "pilot_in_command_hours,comments\r\n"
        "2002-06-15,KATL,Hartsfield Intl,LFPG,Charles de Gaulle,Boeing 767,Quillmark Air "
        "Lines,12,07:35,21:05,"
        "07:35,21:10,5.5,2.1,1.0,7.6,\"Said \"\"caf\xC3\xA9\"\", smooth\"\r\n");
}

TEST(LogCsv, AnEmptyLogIsItsHeader) {
    const std::string csv = logCsv({});
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 1);
}

TEST(LogCsv, ADateOfNoCalendarIsEmpty) {
    LogRecord wild = entry();
    wild.date = 1e300;
    EXPECT_NE(logCsv({wild}).find("\r\n,KATL,"), std::string::npos);
}

TEST(LogListing, ShowsThePageWithItsSums) {
    EXPECT_EQ(logListing(std::vector<LogRecord>(8, entry()), 2, " Amelia Hart", {}),
              "PILOT'S LOG BOOK\n"
              "Pilot: Amelia Hart                                          Page 2 of 2\n"
              "\n"
              "DATE        FLIGHT                                                 INST.     PIC\n"
              "--------------------------------------------------------------------------------\n"
              "2002-06-15  Quillmark Air Lines 12                                   1.0     7.6\n"
              "            07:35 KATL - Hartsfield Intl\n"
              "            21:10 LFPG - Charles de Gaulle\n"
              "            Said \"caf\xE9\", smooth\n"
              "\n"
              "--------------------------------------------------------------------------------\n"
              "                                                Totals this page     1.0     7.6\n"
              "                                      Totals from previous pages     7.0    53.2\n"
              "                                                  Totals to date     8.0    60.8\n");
}

TEST(LogListing, CommentsKeepTheirColumnAndAirportsAreWhole) {
    LogRecord full = entry();
    full.departureName = std::string(35, 'D');
    full.comments = std::string(68, 'c') + "x";
    const std::string text = logListing({full}, 1, "", {});
    EXPECT_NE(text.find("07:35 KATL - " + std::string(35, 'D') + "\n"), std::string::npos);
    EXPECT_NE(text.find("\n            " + std::string(68, 'c') + "\n"), std::string::npos);
    EXPECT_NE(text.find("c\n            x\n\n"), std::string::npos);
    full.comments = "Fog. " + std::string(63, 'c') + " Late\r\n\r\nDiverted\rhome";
    EXPECT_NE(logListing({full}, 1, "", {})
                  .find("\n            Fog. " + std::string(63, 'c') +
                        "\n            Late\n            \n            Diverted\n            home\n\n"),
              std::string::npos);
    full.comments = "Fog. " + std::string(64, 'c');
    EXPECT_NE(logListing({full}, 1, "", {})
                  .find("\n            Fog.\n            " + std::string(64, 'c') + "\n\n"),
              std::string::npos);
    full.comments = std::string(67, 'c') + "x";
    EXPECT_NE(logListing({full}, 1, "", {}).find("cx\n"), std::string::npos);
}

} // namespace
} // namespace gatewise
