#include "announce/Hall.h"

#include "support/Wave.h"

#include <algorithm>
#include <fstream>

namespace gatewise::test {

namespace {

/// A recording of a few samples of silence.
void record(const std::string& path) {
    static const Bytes wave = waveOf(Bytes(8, 0x80));
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(wave.data()), static_cast<std::streamsize>(wave.size()));
}

} // namespace

Hall::Hall() {
    schedule = smallSchedule();
    schedule.flights.clear();
    const std::string wavs = folder.path("/Wavs/");
    for (const char* name : {"Ambience", "Announcements", "click"}) record(wavs + name + ".wav");
    for (const char* voice : {"Male/", "Female/"}) {
        for (int i = 1; i <= 11; ++i) record(wavs + voice + "ann" + std::to_string(i) + ".wav");
        for (int i = 0; i < 100; ++i) record(wavs + voice + std::to_string(i) + ".wav");
        for (int i = 0; i < 10; ++i) record(wavs + voice + "0" + std::to_string(i) + ".wav");
        for (const char* name : {"welcome", "Airlines/xx", "Cities/bbb"})
            record(wavs + voice + name + ".wav");
    }
    sounds.folder = folder.path();
    t.sound.log = &sounds;
    t.machine.loop.tick = [](void* timer) { user::tick(*static_cast<Timer*>(timer)); };
    t.p.forms.attachTimers(&timers);
}

Hall::~Hall() {
    t.p.forms.attachTimers(nullptr);
    t.sound.log = nullptr;
}

void Hall::departure(int hhmm, int number) {
    FlightRecord record = flight("XX", number, hhmm, 2359, 0, 1);
    record.AircraftCode = "738";
    record.ClassCode = "F";
    schedule.flights.push_back(record);
}

void Hall::arrival(int hhmm, int number) {
    FlightRecord record = flight("XX", number, 0, hhmm, 1, 0);
    record.AircraftCode = "738";
    record.ClassCode = "F";
    schedule.flights.push_back(record);
}

void Hall::open(int hhmm, std::string_view settings) {
    std::ranges::stable_sort(schedule.flights, {}, &FlightRecord::OriginIndex);
    schedule.complete();
    schedule.write(folder, "/Data");
    writeSettings(folder,
                  "ambVolume=-1800\r\nDept1=1\r\nDept2=1\r\nDept3=1\r\nArr1=1\r\nArr2=1\r\nArr3=1\r\n" +
                      std::string(settings));
    t.machine.clock.set({2002, 6, 15, hhmm / 100, hhmm % 100, 0, 0});
    t.start();
    user::click(board.statusboard_LABEL);
    sounds.lines.clear();
}

void Hall::setTime(int hhmm) {
    t.machine.clock.set({2002, 6, 15, hhmm / 100, hhmm % 100, 0, 0});
    tick(board.update_TIMER);
}

Timer& Hall::playTimer(int timer) {
    if (timer == 1) return board.play1Timer;
    return timer == 2 ? board.play2Timer : board.play3Timer;
}

std::string Hall::play(int timer, double start) {
    board.waitPlayTimer.enable(false);
    plainDraws(start);
    const std::size_t before = sounds.lines.size();
    std::string flight;
    tick(playTimer(timer));
    for (std::size_t i = before; i < sounds.lines.size(); ++i) {
        const std::string& line = sounds.lines[i];
        if (!line.starts_with("PlayDXSound ") || line.starts_with("PlayDXSound 7")) continue;
        const auto& now = t.p.session.board.BoardMode == "departing" ? t.p.session.hall.AnnouncedDepartures
                                                                     : t.p.session.hall.AnnouncedArrivals;
        flight = line.substr(12, 1) + " " + now[static_cast<std::size_t>(timer - 1)][0];
    }
    return flight;
}

bool Hall::heard(std::string_view line) const {
    return std::ranges::find(sounds.lines, line) != sounds.lines.end();
}

} // namespace gatewise::test
