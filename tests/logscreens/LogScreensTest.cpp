#include "dispatch/Terminal.h"
#include "logbook/LogExchange.h"
#include "logbook/LogListing.h"
#include "pages/ClockForm.h"
#include "pages/LoadSettings.h"
#include "pages/MainLog.h"
#include "work/LogWork.h"

#include <algorithm>

// The log page and the entry screen over real files, where a file does not do what it should.

namespace gatewise::test {
namespace {

constexpr const char* kBook = "/Data/LogBook.gt1";
constexpr const char* kExchange = "/fs/Modules/logrecords.gt1";

LogRecord entry(int number) {
    LogRecord r;
    r.date = 37422;
    r.departureIcao = "KAAA";
    r.arrivalIcao = "KBBB";
    r.departureName = "Alpha Field";
    r.arrivalName = "Bravo Intl";
    r.scheduledDeparture = r.actualDeparture = 900;
    r.scheduledArrival = r.actualArrival = 1000;
    r.airline = "Example Air";
    r.flightNumber = static_cast<std::int16_t>(number);
    r.comments = "no " + std::to_string(number);
    return r;
}

std::vector<LogRecord> entries(int count) {
    std::vector<LogRecord> out;
    for (int i = 0; i < count; ++i) out.push_back(entry(i));
    return out;
}

class LogScreens : public testing::Test {
protected:
    /// The program on its log page with these entries on disk; the simulator's folder has its Modules.
    void open(const std::vector<LogRecord>& log, const Bytes* exchange = nullptr) {
        Schedule schedule = smallSchedule();
        schedule.write(folder, "/Data");
        if (!log.empty()) folder.write(kBook, ByteView(bytesOf(log)));
        if (exchange != nullptr) folder.write(kExchange, ByteView(*exchange));
        std::filesystem::create_directories(folder.path("/fs/Modules"));
        folder.write("/fs/fs2002.exe", "");
        writeSettings(folder, "[Main]\r\nPathVerified=1\r\nFSPath=" + folder.path("/fs") + "\r\n");
        t.p.session.settings.FsPath = folder.path("/fs");
        t.start();
        t.p.session.settings.FsPath = folder.path("/fs");
        (void)LoadLogBook(logFiles(t.p.session.AppDir, t.p.session.settings.FsPath), {}, t.p.session.log);
        user::click(page.log_LABEL);
        t.shown.clear();
    }
    void logCurrentFlight() {
        t.p.session.dispatch.CurrentFlight = flight("XX", 10, 900, 1000);
        t.p.session.dispatch.DepartureIndex = 0;
        t.p.session.dispatch.DestinationIndex = 1;
        page.sendlogButton.State = 1;
        user::click(page.sendlogButton);
    }
    [[nodiscard]] std::vector<LogRecord> book() const { return readLogBook(folder.path(kBook)); }
    /// Nothing can be written over the log book while this stands.
    void blockBook() {
        std::filesystem::remove(folder.path(kBook));
        std::filesystem::create_directories(folder.path(kBook) + "/taken");
    }
    void pick(int row) { user::click(page.log_press(row)); }
    bool failureShown(std::string_view function) const {
        return t.lastMessage.find("has recieved an Error") != std::string::npos &&
               t.lastMessage.find(function) != std::string::npos;
    }

    TempFolder folder;
    Terminal t{folder};
    forms::MainForm& page = t.p.forms.MainForm;
    forms::LogEntry& form = t.p.forms.LogEntry;
    forms::MsgForm& message = t.p.forms.MsgForm;
};

TEST_F(LogScreens, ASaveThatFailsIsSaidAndLeavesTheEntryOpen) {
    open(entries(2));
    pick(1);
    bool stillOpen = false;
    t.answers = {[&] {
                     user::type(form.notes, "worth keeping");
                     blockBook();
                     user::click(form.saveButton);
                     stillOpen = form.visible;
                 },
                 [&] { user::click(message.okButton); }};
    user::click(page.logButton(0));
    EXPECT_EQ(t.shown, (std::vector<std::string>{"LogEntry", "MsgForm"}))
        << "one message, and not that it was saved";
    EXPECT_TRUE(failureShown("SaveLogEntry")) << t.lastMessage;
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(t.p.session.log.LogEntries[1].comments.trimmed(), "worth keeping");
}

TEST_F(LogScreens, ADeleteThatFailsIsSaidInAMessageOfItsOwn) {
    open(entries(2));
    pick(0);
    t.answers = {[&] {
                     blockBook();
                     user::click(message.okButton);
                 },
                 [&] { user::click(message.okButton); }};
    user::click(page.logButton(1));
    EXPECT_EQ(t.shown, (std::vector<std::string>{"MsgForm", "MsgForm"}));
    EXPECT_TRUE(failureShown("DeleteLogEntry")) << t.lastMessage;
    EXPECT_FALSE(message.visible);
    EXPECT_EQ(t.p.session.log.LogEntries.size(), 2U);
}

TEST_F(LogScreens, AnAddThatFailsIsSaidAndAddsNothing) {
    open(entries(1));
    blockBook();
    t.answers = {[&] { user::click(message.okButton); }};
    logCurrentFlight();
    EXPECT_EQ(t.shown, std::vector<std::string>{"MsgForm"});
    EXPECT_TRUE(failureShown("AddLogEntry")) << t.lastMessage;
    EXPECT_EQ(t.p.session.log.LogEntries.size(), 1U);
}

TEST_F(LogScreens, TheEntryBehindTenThousandIsRefusedWithAMessage) {
    open(entries(kLogEntries));
    const auto before = folder.read(kBook);
    logCurrentFlight();
    EXPECT_EQ(t.shown, std::vector<std::string>{"MsgForm"});
    EXPECT_TRUE(failureShown("AddLogEntry")) << t.lastMessage;
    EXPECT_EQ(folder.read(kBook), before);
    EXPECT_EQ(t.p.session.log.LastLogIndex(), kLogEntries - 1);
    EXPECT_EQ(page.pageMAX.text, "1429");
}

TEST_F(LogScreens, TheTenThousandthEntryIsTaken) {
    open(entries(kLogEntries - 1));
    logCurrentFlight();
    EXPECT_EQ(t.lastMessage.substr(0, 37), "Gatewise Terminal has created a Log B");
    EXPECT_EQ(book().size(), static_cast<std::size_t>(kLogEntries));
    EXPECT_EQ(book().back().flightNumber, 10);
}

TEST_F(LogScreens, TheQuestionIsAskedOnceAndOneEntryGoes) {
    open(entries(3));
    pick(1);
    t.answers = {[&] { user::click(message.okButton); }};
    user::click(page.logButton(1));
    EXPECT_EQ(t.shown, std::vector<std::string>{"MsgForm"});
    EXPECT_FALSE(message.visible);
    ASSERT_EQ(book().size(), 2U);
    EXPECT_EQ(book()[0].flightNumber, 0);
    EXPECT_EQ(book()[1].flightNumber, 2);
    EXPECT_EQ(t.p.session.log.LastLogIndex(), 1);
    EXPECT_EQ(page.pic_notes(1).text.substr(0, 5), "no 2 ");
    EXPECT_EQ(page.pic_notes(2).text, "");
    EXPECT_EQ(page.logButton(1).State, 0);
}

TEST_F(LogScreens, DeletingTheOnlyEntryEmptiesTheFileAndKeepsTheExchangeFile) {
    const Bytes exchange = exchangeBytes(entries(1), {});
    open(entries(1), &exchange);
    pick(0);
    t.answers = {[&] { user::click(message.okButton); }};
    user::click(page.logButton(1));
    EXPECT_TRUE(std::filesystem::exists(folder.path(kBook)));
    EXPECT_EQ(std::filesystem::file_size(folder.path(kBook)), 0U);
    EXPECT_EQ(t.p.session.log.LastLogIndex(), -1);
    EXPECT_EQ(folder.read(kExchange), std::string(exchange.begin(), exchange.end()));
    EXPECT_EQ(page.pageMAX.text, "1");
}

TEST_F(LogScreens, TheStaleTailBringsItsTimesToTheEntryThatTakesItsPlace) {
    auto sent = entries(2);
    sent[1].actualDeparture = 915;
    sent[1].actualArrival = 1020;
    const Bytes exchange = exchangeBytes(sent, {});
    open(entries(2), &exchange);
    EXPECT_EQ(t.p.session.log.LogEntries[1].actualDeparture, 915);
    pick(1);
    t.answers = {[&] { user::click(message.okButton); }};
    user::click(page.logButton(1));
    EXPECT_EQ(std::filesystem::file_size(folder.path(kExchange)), 2U * 132U) << "never cut";
    logCurrentFlight();
    ASSERT_EQ(t.p.session.log.LogEntries.size(), 2U);
    EXPECT_EQ(t.p.session.log.LogEntries[1].actualDeparture, 915);
    EXPECT_EQ(t.p.session.log.LogEntries[1].actualArrival, 1020);
    EXPECT_EQ(book()[1].actualDeparture, 900) << "the log book's own file has the flight's times";
}

TEST_F(LogScreens, TimesFromTheSimulatorAreMergedByIndexAndShown) {
    auto sent = entries(9);
    sent[8].actualDeparture = 2359;
    const Bytes exchange = exchangeBytes(sent, {});
    open(entries(9), &exchange);
    user::click(page.logButton(3));
    pick(1);
    t.answers = {[&] {
        EXPECT_EQ(form.ACTdepttime_LABEL.text, "23:59");
        EXPECT_EQ(form.depttime_LABEL.text, "09:00");
        EXPECT_EQ(form.DIFFdepttime_LABEL.text, "-14:59");
    }};
    user::click(page.logButton(0));
    EXPECT_EQ(t.shown, std::vector<std::string>{"LogEntry"});
}

TEST_F(LogScreens, WithoutModulesOnlyTheExchangeFileIsMissing) {
    open({});
    std::filesystem::remove_all(folder.path("/fs/Modules"));
    logCurrentFlight();
    EXPECT_EQ(book().size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(folder.path("/fs/Modules")));
    EXPECT_EQ(t.lastMessage.substr(0, 37), "Gatewise Terminal has created a Log B");
}

TEST_F(LogScreens, TheCloseOfTheFrameLeavesTheChangesInMemoryAndTheOtherTakesThemBack) {
    open(entries(1));
    pick(0);
    const auto later = [&](SkinnedButton& close) {
        return [&] {
            t.p.session.log.LogField = "day";
            stepLogField(t.p, "timeHr_up");
            user::click(close);
        };
    };
    t.answers = {later(form.close1Button)};
    user::click(page.logButton(0));
    EXPECT_EQ(t.p.session.log.LogEntries[0].dayHours, 0.0F);
    EXPECT_EQ(page.logButton(0).State, 0);

    pick(0);
    t.answers = {later(form.closeButton)};
    user::click(page.logButton(0));
    EXPECT_EQ(t.p.session.log.LogEntries[0].dayHours, 1.0F) << "that button only hides the screen";
    EXPECT_EQ(page.logButton(0).State, 1);
    EXPECT_EQ(book()[0].dayHours, 0.0F);
}

TEST_F(LogScreens, NotesAreTrimmedPaddedAndCutAtOnce) {
    open(entries(1));
    pick(0);
    t.answers = {[&] {
        EXPECT_EQ(form.notes.text, " no 0" + std::string(146, ' '));
        user::type(form.notes, "  smooth ride  ");
        EXPECT_EQ(t.p.session.log.LogEntries[0].comments.str(), "smooth ride" + std::string(139, ' '));
        user::type(form.notes, std::string(170, 'x'));
        EXPECT_EQ(t.p.session.log.LogEntries[0].comments.str(), std::string(150, 'x'));
        user::type(form.notes, " " + std::string(149, 'y') + "z");
        EXPECT_EQ(t.p.session.log.LogEntries[0].comments.str(), std::string(149, 'y') + "z")
            << "what the box shows is kept";
        user::type(form.notes, "");
        EXPECT_EQ(t.p.session.log.LogEntries[0].comments.str(), std::string(150, ' '));
        user::click(form.close1Button);
    }};
    user::click(page.logButton(0));
    EXPECT_EQ(t.p.session.log.LogEntries[0].comments.trimmed(), "no 0");
}

TEST_F(LogScreens, AnEditWritesTheFileWithTheSaveAlone) {
    open(entries(2));
    pick(1);
    t.answers = {[&] {
                     t.p.session.log.LogField = "dept";
                     stepLogField(t.p, "timeMin_dn");
                     EXPECT_EQ(form.ACTdepttime_LABEL.text, "08:59");
                     EXPECT_EQ(form.DIFFdepttime_LABEL.text, "00:01");
                     EXPECT_EQ(book()[1].actualDeparture, 900);
                     user::click(form.saveButton);
                 },
                 [&] { user::click(message.okButton); }};
    user::click(page.logButton(0));
    EXPECT_EQ(t.lastMessage, "Gatewise Terminal has saved the current Entry to your Log Book.");
    EXPECT_EQ(book()[1].actualDeparture, 859);
    EXPECT_EQ(book()[0].actualDeparture, 900);
    EXPECT_EQ(std::filesystem::file_size(folder.path(kExchange)), 2U * 132U);
}

TEST_F(LogScreens, TheTotalNeverIncludesTheInstrumentHours) {
    open(entries(1));
    pick(0);
    t.answers = {[&] {
        for (const char* field : {"day", "night", "inst", "inst"}) {
            t.p.session.log.LogField = field;
            stepLogField(t.p, "timeHr_up");
        }
        EXPECT_EQ(form.inst_LABEL.text, "2.0");
        EXPECT_EQ(form.total_LABEL.text, "2.0");
        t.p.session.log.LogField = "night";
        stepLogField(t.p, "timeMin_up");
        EXPECT_EQ(form.total_LABEL.text, "2.1");
    }};
    user::click(page.logButton(0));
}

TEST_F(LogScreens, PageButtonsAtTheBordersOfThePages) {
    struct Case {
        int entries;
        const char* pages;
        int next;
    };
    const Case cases[] = {{0, "1", 0}, {1, "1", 0},  {6, "1", 0}, {7, "1", 0},
                          {8, "2", 1}, {14, "2", 1}, {15, "3", 1}};
    open({});
    for (const Case& c : cases) {
        t.p.session.log.LogEntries = entries(c.entries);
        user::click(page.log_LABEL);
        EXPECT_EQ(page.pageMAX.text, c.pages) << c.entries;
        EXPECT_EQ(page.curPage.text, "1");
        EXPECT_EQ(page.logButton(3).State, c.next) << c.entries;
        EXPECT_EQ(page.logButton(2).State, 0);
        EXPECT_EQ(page.logButton(0).State, 0);
        EXPECT_EQ(page.logButton(1).State, 0);
    }
    user::click(page.logButton(3));
    EXPECT_EQ(page.curPage.text, "2");
    EXPECT_EQ(page.logButton(2).State, 1);
    EXPECT_EQ(page.logButton(3).State, 1);
    user::click(page.logButton(3));
    EXPECT_EQ(page.curPage.text, "3");
    EXPECT_EQ(page.logButton(3).State, 0);
    EXPECT_EQ(page.logButton(3).picture, "next_disabled");
    EXPECT_NE(page.log_dept(0).text, "");
    EXPECT_EQ(page.log_dept(1).text, "");
}

TEST_F(LogScreens, PreviousOnPageOneStaysAndRedraws) {
    open(entries(8));
    page.log_dept(0).text = "old";
    page.logButton(2).State = 1;
    user::click(page.logButton(2));
    EXPECT_EQ(page.curPage.text, "1");
    EXPECT_NE(page.log_dept(0).text, "old");
    EXPECT_EQ(page.logButton(2).State, 0);
}

TEST_F(LogScreens, NextBehindTheLastPageStaysAndRedraws) {
    open(entries(7));
    page.log_dept(0).text = "old";
    page.logButton(3).State = 1;
    user::click(page.logButton(3));
    EXPECT_EQ(page.curPage.text, "1");
    EXPECT_NE(page.log_dept(0).text, "old");
}

TEST_F(LogScreens, ARowIsMarkedAloneAndOneWithoutAnEntryIsNone) {
    open(entries(9));
    user::click(page.logButton(3));
    pick(1);
    EXPECT_EQ(t.p.session.log.LogSelected, 8);
    for (int i = 0; i < 7; ++i) EXPECT_EQ(page.dept_back(i).highlighted, i == 1) << i;
    pick(2);
    EXPECT_EQ(t.p.session.log.LogSelected, 8) << "there is no tenth entry";
    user::doubleClick(page.log_press(2));
    EXPECT_TRUE(t.shown.empty());
    user::click(page.logButton(2));
    for (int i = 0; i < 7; ++i) EXPECT_FALSE(page.dept_back(i).highlighted) << i;
    EXPECT_EQ(page.logButton(0).State, 0);
}

TEST_F(LogScreens, ABookWithABrokenLastRecordIsShownWithoutItAndKeptBeforeAChange) {
    open(entries(2));
    Bytes broken = bytesOf(entries(2));
    broken.resize(broken.size() + 100, 'x');
    folder.write(kBook, ByteView(broken));
    (void)LoadLogBook(logFiles(t.p.session.AppDir, t.p.session.settings.FsPath), {}, t.p.session.log);
    EXPECT_EQ(t.p.session.log.LastLogIndex(), 1);
    logCurrentFlight();
    EXPECT_EQ(folder.read("/Data/LogBook.bak"), std::string(broken.begin(), broken.end()));
    EXPECT_EQ(book().size(), 3U);
    EXPECT_EQ(book()[2].flightNumber, 10);
}

TEST_F(LogScreens, TheBookGoesIntoTheFileThatThePilotNames) {
    open(entries(2));
    user::click(page.logcsvButton);
    EXPECT_EQ(folder.read("/LogBook.csv"), logCsv(t.p.session.log.LogEntries));
}

TEST_F(LogScreens, AnExportThatFailsIsSaid) {
    open(entries(2));
    std::filesystem::create_directories(folder.path("/LogBook.csv"));
    user::click(page.logcsvButton);
    EXPECT_EQ(t.shown, std::vector<std::string>{"MsgForm"});
    EXPECT_EQ(t.p.session.desk.MessageMode, "regular");
}

} // namespace
} // namespace gatewise::test
