#include "logbook/LogImport.h"
#include "logbook/ImportFields.h"
#include "logbook/LogListing.h"
#include "logbook/SeparatedText.h"
#include "platform/Machine.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

LogRecord flight() {
    LogRecord e;
    e.date = static_cast<double>(daySerial({2002, 6, 15, 0, 0, 0}));
    e.departureIcao = "KATL", e.arrivalIcao = "KORD";
    e.departureName = "Hartsfield, Intl", e.arrivalName = "O'Hare";
    e.aircraft = "Boeing 737", e.airline = "Sample Air";
    e.flightNumber = 12;
    e.scheduledDeparture = 735, e.scheduledArrival = 905;
    e.actualDeparture = 740, e.actualArrival = 910;
    e.dayHours = 1.5F, e.nightHours = 0.5F, e.instrumentHours = 0.3F;
    e.comments = "He said \"fine\"";
    return e;
}

TEST(LogImport, OurOwnExportComesBackAsItWas) {
    const LogImport log = importLog(logCsv({flight()}), {});
    ASSERT_EQ(log.entries.size(), 1U);
    Bytes a, b;
    appendRecord(a, flight());
    appendRecord(b, log.entries[0]);
    EXPECT_EQ(a, b);
}

TEST(LogImport, WhatTheLogBookHasIsNotTakenAgain) {
    const LogImport log = importLog(logCsv({flight(), flight()}), {});
    EXPECT_EQ(log.entries.size(), 1U);
    EXPECT_EQ(log.duplicates, 1);
    EXPECT_EQ(importLog(logCsv({flight()}), {flight()}).duplicates, 1);
    LogRecord later = flight();
    later.actualDeparture = 1200;
    EXPECT_EQ(importLog(logCsv({later}), {flight()}).entries.size(), 1U);
}

struct Foreign {
    const char* name;
    const char* text;
};

/// The same flight as other log books write it.
constexpr Foreign kForeign[] = {
    {"openPilotLog",
     "Date,Departure Place,Departure Time,Arrival Place,Arrival Time,Aircraft Type,Total Time,Night,IFR,"
     "Remarks\n2002-06-15,KATL,07:40,KORD,09:10,Boeing 737,2:00,0:30,0:18,ok\n"},
    {"MyFlightbook",
     "Date,Model,Route,Block Out,Block In,Total Flight Time,Night,IMC,Simulated Instrument,Comments\n"
     "2002-06-15,Boeing 737,KATL DCT KORD,2002-06-15 07:40Z,2002-06-15 09:10Z,2.0,0.5,0.2,0.1,ok\n"},
    {"ForeFlight",
     "ForeFlight Logbook Import\n\nAircraft Table\nAircraftID,TypeCode\nN1,B737\n\nFlights Table\n"
     "Date,AircraftID,From,To,Route,TimeOut,TimeIn,TotalTime,Night,ActualInstrument,PilotComments\n"
     "2002-06-15,Boeing 737,KATL,KORD,,0740,0910,2.0,0.5,0.3,ok\n"},
    {"LogTen",
     "flight_flightDate\tflight_from\tflight_to\tflight_actualDepartureTime\tflight_actualArrivalTime\t"
     "flight_totalTime\tflight_night\tflight_actualInstrument\taircraft_aircraftType\tflight_remarks\n"
     "2002-06-15\tKATL\tKORD\t2002-06-15 07:40\t2002-06-15 09:10\t2:00\t0:30\t0:18\tBoeing 737\tok\n"},
    {"semicolons", "Date;From;To;TimeOut;TimeIn;Total;Night;IMC;Model;Remarks\n"
                   "15.06.2002;KATL;KORD;7:40;9:10;2,0;0,5;0,3;Boeing 737;ok\n"},
};

/// The one flight that each of the foreign log books tells.
void expectTheFlight(const LogImport& log, std::string_view aircraft, const char* name) {
    ASSERT_EQ(log.entries.size(), 1U) << name;
    const LogRecord& e = log.entries[0];
    EXPECT_EQ(e.date, flight().date) << name;
    EXPECT_EQ(e.departureIcao.view(), "KATL") << name;
    EXPECT_EQ(e.arrivalIcao.view(), "KORD") << name;
    EXPECT_EQ(e.actualDeparture, 740) << name;
    EXPECT_EQ(e.actualArrival, 910) << name;
    EXPECT_EQ(e.scheduledArrival, 910) << name;
    EXPECT_NEAR(e.dayHours, 1.5, 1e-6) << name;
    EXPECT_NEAR(e.nightHours, 0.5, 1e-6) << name;
    EXPECT_NEAR(e.instrumentHours, 0.3, 1e-6) << name;
    EXPECT_EQ(e.aircraft.trimmed(), aircraft) << name;
    EXPECT_EQ(e.comments.trimmed(), "ok") << name;
}

TEST(LogImport, OtherLogBooksAreKnownByTheirHeaders) {
    for (const auto& [name, text] : kForeign) expectTheFlight(importLog(text, {}), "Boeing 737", name);
}

/// Headers as those programs write them, in full, and the aircraft that each tells.
TEST(LogImport, TheWholeHeadersOfOtherLogBooksAreKnown) {
    struct Whole {
        const char* text;
        const char* aircraft;
    };
    const Whole all[] = {
        {"flight_id,Date,Dept,Time Out,Dest,Time In ,Type,Registration,SP SE,SP ME,MP,Total,Name "
         "PIC,Take-Off Day,"
         "Landings Day,Take-Off Night,Landings Night,Night,IFR,PIC,SIC,Dual,FI,Sim Type,Time of "
         "Session,Remarks\n"
         "1,2002-06-15,KATL,07:40,KORD,09:10,Boeing "
         "737-800,N1,,,02:00,02:00,self,1,1,0,0,00:30,00:18,02:00,,,,,,ok\n",
         "Boeing 737-800"},
        {"Date,Tail Number,Total Flight Time,Approaches,Hold,Landings,FS Day Landings,FS Night "
         "Landings,X-Country,Night,"
         "IMC,Simulated Instrument,Ground Simulator,Dual Received,CFI,SIC,PIC,Route,Block Out,Block "
         "In,Comments\n"
         "6/15/2002,N1,2,0,,1,1,0,2,0.5,0.2,0.1,,,,,2,KATL KORD,2002-06-15 07:40Z,2002-06-15 09:10Z,ok\n",
         "N1"},
        {"ForeFlight Logbook Import,This row is required.,,,\n,,,\nAircraft "
         "Table,,,\nText,Text,Text,YYYY,Text,Text\n"
         "AircraftID,EquipmentType,TypeCode,Year,Make,Model\nn1,aircraft,B738,2001,Boeing,737\n\nFlights "
         "Table,,,\n"
         "Date,Text,Text,Text,Text,hhmm,hhmm,Decimal,Decimal,Decimal,Text\n"
         "Date,AircraftID,From,To,Route,TimeOut,TimeIn,TotalTime,Night,ActualInstrument,PilotComments\n"
         "2002-06-15,N1,KATL,KORD,,07:40,09:10,2.0,0.5,0.3,ok\n",
         "B738"},
        {"flight_flightDate\tflight_flightNumber\tflight_from\tflight_to\tflight_actualDepartureTime\t"
         "flight_actualArrivalTime\taircraft_aircraftID\taircraftType_type\tflight_totalTime\tflight_night\t"
         "flight_ifr\tflight_remarks\n15 Jun "
         "2002\t7\tKATL\tKORD\t07:40\t09:10\tN1\tB738\t2+00\t0+30\t0+18\tok\n",
         "B738"},
    };
    for (const auto& [text, aircraft] : all) expectTheFlight(importLog(text, {}), aircraft, aircraft);
}

TEST(LogImport, ARouteOfOneCodeIsAFlightAroundIt) {
    const LogImport log =
        importLog("date,route\n2002-06-15,KATL\n2002-06-15,practice\n2002-06-15,K-L\n2002-06-16,\n", {});
    ASSERT_EQ(log.entries.size(), 2U);
    EXPECT_EQ(log.entries[0].departureIcao.view(), "KATL");
    EXPECT_EQ(log.entries[0].arrivalIcao.view(), "KATL");
    EXPECT_EQ(log.entries[1].arrivalIcao.trimmed(), "L") << "two words of one letter each";
    EXPECT_EQ(log.unread, 2);
}

TEST(LogImport, AnAircraftWithoutACodeGoesByMakeAndModel) {
    const auto type = [](const std::string& row) {
        const LogImport log = importLog(
            "AircraftID,TypeCode,Make,Model\n" + row + "\nDate,AircraftID,From,To\n2002-06-15,n2,A,B\n", {});
        return std::string(log.entries.at(0).aircraft.trimmed());
    };
    EXPECT_EQ(type("N2,,Piper,PA-28"), "Piper PA-28");
    EXPECT_EQ(type("N2,,,\"Cub\x01\""), "Cub");
    EXPECT_EQ(type("N2,,,"), "n2") << "nothing is told of it";
    EXPECT_EQ(type("N3,C172,,"), "n2") << "it is not in the table";
    EXPECT_EQ(type("N2"), "n2") << "a row that breaks off";
}

TEST(LogImport, ATableOfSomethingElseIsNotKnown) {
    EXPECT_FALSE(importLog("a,b\n1,2\n", {}).known);
    EXPECT_FALSE(importLog("", {}).known);
}

TEST(LogImport, RowsThatCannotBeReadAreCounted) {
    const LogImport log =
        importLog("date,from,to\n2002-02-30,A,B\n2002-06-15,,KORD\n2002-06-15,KATL,KORD\nrest\n", {});
    EXPECT_EQ(log.rows, 4);
    EXPECT_EQ(log.unread, 3);
    EXPECT_EQ(log.entries.size(), 1U);
}

TEST(LogImport, AFullLogBookTakesNothingMore) {
    const std::vector<LogRecord> full(kLogEntries);
    const LogImport log = importLog("date,from,to\n2002-06-15,KATL,KORD\n", full);
    EXPECT_TRUE(log.full);
    EXPECT_TRUE(log.entries.empty());
}

TEST(LogImport, SlashesAreReadAsTheWholeFileHasThem) {
    const auto first = [](const char* text) { return importLog(text, {}).entries.at(0).date; };
    EXPECT_EQ(first("date,from,to\n06/07/2002,A,B\n"), static_cast<double>(daySerial({2002, 6, 7, 0, 0, 0})));
    EXPECT_EQ(first("date,from,to\n06/07/2002,A,B\n15/07/2002,A,B\n"),
              static_cast<double>(daySerial({2002, 7, 6, 0, 0, 0})));
}

TEST(ImportFields, Dates) {
    const auto june = static_cast<double>(daySerial({2002, 6, 15, 0, 0, 0}));
    for (const char* text :
         {"2002-06-15", "2002/6/15", "20020615", "15.06.2002", "06/15/2002", "06-15-02", "15 Jun 2002",
          "15-Jun-02", "June 15, 2002", "2002-Jun-15", "15 june 2002 07:40", "2002-06-15T07:40:00Z"})
        EXPECT_EQ(importedDate(text, false), june) << text;
    EXPECT_EQ(importedDate("15-06-2002", true), june);
    EXPECT_TRUE(saysDayFirst("15-06-2002"));
    EXPECT_FALSE(saysDayFirst("2002-06-15"));
    for (const char* text : {"", "-1-1-1", "2002-13-01", "2002-02-29", "00000000", "2002061", "200206150",
                             "Jun 2002", "15 Ju 2002", "15 Junk 2002", "31 Jun 2002", "37422", "1-2", "a"})
        EXPECT_FALSE(importedDate(text, false).has_value()) << text;
}

std::string utf16(std::string_view ascii, bool lowFirst) {
    std::string out = lowFirst ? "\xFF\xFE" : "\xFE\xFF";
    for (const char c : ascii) {
        if (lowFirst)
            out.append(1, c).append(1, '\0');
        else
            out.append(1, '\0').append(1, c);
    }
    return out;
}

TEST(LogImport, WhatASpreadsheetSavesAsUnicodeIsRead) {
    for (const bool lowFirst : {true, false}) {
        std::string text = utf16("date\tfrom\tto\tremarks\n2002-06-15\tKATL\tKORD\tok", lowFirst);
        text += lowFirst ? std::string("\x3D\xD8\x00\xDE\x00\xD8!\x00", 8)
                         : std::string("\xD8\x3D\xDE\x00\xD8\x00\x00!", 8);
        const LogImport log = importLog(text + "\n", {}); // half a character at the end
        ASSERT_EQ(log.entries.size(), 1U);
        EXPECT_EQ(log.entries[0].departureIcao.view(), "KATL");
        EXPECT_EQ(log.entries[0].comments.trimmed(), "ok?"
                                                     "?!")
            << "a pair, and half of one";
    }
    EXPECT_FALSE(importLog("\xFF\xFE", {}).known);
    EXPECT_FALSE(importLog("\xFE\xFF"
                           "a",
                           {})
                     .known);
}

TEST(LogImport, BothEncodingsAreRead) {
    const auto remark = [](const char* text) { return importLog(text, {}).entries.at(0).comments.str(); };
    EXPECT_EQ(remark("date,from,to,remarks\n2002-06-15,A,B,Z\xC3\xBCrich\n").substr(0, 6), "Z\xFCrich");
    EXPECT_EQ(remark("date,from,to,remarks\n2002-06-15,A,B,Z\xFCrich\n").substr(0, 6), "Z\xFCrich");
}

TEST(ImportFields, TimesAndHours) {
    EXPECT_EQ(importedTime("7:35"), 735);
    EXPECT_EQ(importedTime("07:35:59"), 735);
    EXPECT_EQ(importedTime("0735"), 735);
    EXPECT_EQ(importedTime("24:00"), -1);
    EXPECT_EQ(importedTime("7"), -1);
    EXPECT_EQ(importedTime(""), -1);
    EXPECT_NEAR(importedHours("1:30"), 1.5, 1e-9);
    EXPECT_NEAR(importedHours("1+30"), 1.5, 1e-9);
    EXPECT_EQ(importedHours("+"), 0);
    EXPECT_NEAR(importedHours("1,5"), 1.5, 1e-9);
    EXPECT_EQ(importedHours("-1"), 0);
    EXPECT_EQ(importedHours("1e99"), 0);
    EXPECT_EQ(importedHours("5000"), 99.9);
    EXPECT_EQ(flightNumber("SA 123"), 123);
    EXPECT_EQ(flightNumber("99999999999"), 0);
    EXPECT_EQ(routeEnds("KATL-KORD").second, "KORD");
    EXPECT_EQ(routeEnds("KATL").first, "");
}

std::vector<std::vector<std::string>> rowsOf(std::string_view text, char sign) {
    SeparatedText table(text, sign);
    std::vector<std::vector<std::string>> rows(1);
    while (table.next(rows.back())) rows.emplace_back();
    rows.pop_back();
    return rows;
}

TEST(SeparatedText, QuotesLineEndsAndEmptyCells) {
    const auto rows = rowsOf("a,\"b,\"\"c\"\"\nd\",\r\n\r\n,x", ',');
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], (std::vector<std::string>{"a", "b,\"c\"\nd", ""}));
    EXPECT_EQ(rows[1], (std::vector<std::string>{"", "x"}));
    EXPECT_EQ(rowsOf("a,", ',')[0].size(), 2U);
    EXPECT_EQ(rowsOf("\"a", ',')[0][0], "a");
    EXPECT_TRUE(rowsOf("", ',').empty());
    EXPECT_TRUE(rowsOf("\n\r\n", ',').empty());
}

TEST(SeparatedText, AQuoteThatNeverEndsLosesNoRow) {
    const auto rows = rowsOf("a,\"b\nc,d\n\"\",\"\"\"\"\n", ',');
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0], (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(rows[1], (std::vector<std::string>{"c", "d"}));
    EXPECT_EQ(rows[2], (std::vector<std::string>{"", "\""}));
}

TEST(SeparatedText, OfARowWithoutEndTheFirstCellsAreRead) {
    const auto rows = rowsOf(std::string(100000, ',') + "\nnext", ',');
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].size(), kMostCells);
    EXPECT_EQ(rows[1][0], "next");
}

TEST(LogImport, WhatIsTooLongForACodeIsAName) {
    const LogImport log = importLog("date,from,to\n2002-06-15,Sample Field,KORD\n", {});
    ASSERT_EQ(log.entries.size(), 1U);
    EXPECT_EQ(log.entries[0].departureIcao.trimmed(), "");
    EXPECT_EQ(log.entries[0].departureName.trimmed(), "Sample Field");
    EXPECT_EQ(log.entries[0].arrivalIcao.view(), "KORD");
    // It comes back from our own export, and is known by its name.
    const LogImport again = importLog(logCsv(log.entries), log.entries);
    EXPECT_EQ(again.duplicates, 1);
    EXPECT_TRUE(again.entries.empty());
}

TEST(LogImport, TheCarrierOfAFlightNumberIsTheAirline) {
    const auto airline = [](const std::string& flight) {
        const LogImport log = importLog("date,from,to,flight\n2002-06-15,A,B," + flight + "\n", {});
        return std::string(log.entries.at(0).airline.trimmed());
    };
    EXPECT_EQ(airline("QA 123"), "QA");
    EXPECT_EQ(airline("B6-17"), "B6");
    EXPECT_EQ(airline("QAL7"), "QAL");
    EXPECT_EQ(airline("123"), "");
    EXPECT_EQ(airline("FLIGHT 5"), "");
    EXPECT_EQ(airline(""), "");
}

TEST(LogImport, ControlCharactersBecomeBlanks) {
    const LogImport log = importLog("date,from,to,remarks\n2002-06-15,A,B,\"one\ntwo\tthree\x01\"\n", {});
    EXPECT_EQ(log.entries.at(0).comments.trimmed(), "one two three");
}

TEST(LogImport, EachRowOfTheTableIsAccountedFor) {
    LogRecord known = flight();
    const LogImport log =
        importLog(logCsv({known}) + "nonsense\r\n2002-06-16,KORD,,KATL,,,,,,,,,,,,,\r\n", {known});
    ASSERT_EQ(log.list.size(), 3U);
    EXPECT_EQ(log.list[0].fate, Fate::Known);
    EXPECT_EQ(log.list[1].fate, Fate::Unread);
    EXPECT_EQ(log.list[2].fate, Fate::New);
    EXPECT_EQ(log.list[2].number, 3);
    EXPECT_EQ(log.list[2].entry.departureIcao.view(), "KORD");
}

TEST(LogImport, ATableWithoutEndIsCut) {
    std::string text = "date,from,to\n";
    for (std::size_t i = 0; i < kMostLogRows + 1; ++i) text += "x,,\n";
    const LogTable table = readLogTable(text);
    EXPECT_TRUE(table.cut);
    EXPECT_EQ(table.rows.size(), kMostLogRows);
    text.resize(text.size() - 4);
    EXPECT_FALSE(readLogTable(text).cut);
}

TEST(LogImport, AHeaderTooFarDownIsNone) {
    std::string text;
    for (int i = 0; i < 6000; ++i) text += "N1,C172\n";
    EXPECT_FALSE(importLog(text + "date,from,to\n2002-06-15,A,B\n", {}).known);
}

} // namespace
} // namespace gatewise
