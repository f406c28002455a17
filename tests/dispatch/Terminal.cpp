#include "dispatch/Terminal.h"

#include "input/Bind.h"

namespace gatewise::test {

void Schedule::complete() {
    for (std::size_t i = 0; i < airports.size(); ++i) {
        airports[i].DepartureCount = 0;
        airports[i].ArrivalCount = 0;
    }
    std::int32_t arrivals = 0;
    for (std::size_t i = 0; i < flights.size(); ++i) {
        FlightRecord& flight = flights[i];
        AirportRecord& origin = airports[static_cast<std::size_t>(flight.OriginIndex)];
        const AirportRecord& destination = airports[static_cast<std::size_t>(flight.DestIndex)];
        flight.OriginIata = origin.Iata;
        flight.DestinationIata = destination.Iata;
        if (origin.DepartureCount++ == 0)
            origin.DepartureOffset = static_cast<std::int32_t>(i * recordSize<FlightRecord>() + 1);
    }
    for (std::size_t place = 0; place < airports.size(); ++place) {
        airports[place].ArrivalOffset = arrivals * 4 + 1;
        for (const FlightRecord& flight : flights) {
            if (flight.DestIndex != static_cast<std::int16_t>(place)) continue;
            ++airports[place].ArrivalCount;
            ++arrivals;
        }
    }
}

void Schedule::write(const TempFolder& folder, std::string_view dataFolder) const {
    const std::string data(dataFolder);
    Bytes arrivals;
    for (std::size_t place = 0; place < airports.size(); ++place) {
        for (std::size_t i = 0; i < flights.size(); ++i) {
            if (flights[i].DestIndex == static_cast<std::int16_t>(place))
                appendField(arrivals, static_cast<std::int32_t>(i * recordSize<FlightRecord>() + 1));
        }
    }
    folder.write(data + "/index.gt1", ByteView(bytesOf(airports)));
    folder.write(data + "/airline.gt1", ByteView(bytesOf(airlines)));
    folder.write(data + "/aircraft.gt1", ByteView(bytesOf(aircraft)));
    folder.write(data + "/routes.gt1", ByteView(bytesOf(flights)));
    folder.write(data + "/arrivals.gt1", ByteView(arrivals));
}

Schedule smallSchedule() {
    Schedule schedule;
    schedule.airports = {airport("AAA", "KAAA", "Alpha Field", "Ashby", 40, -80),
                         airport("BBB", "KBBB", "Bravo Intl", "Birchwood", 41, -81),
                         airport("CCC", "KCCC", "Charlie", "Cedar Point", 41, -80)};
    schedule.airlines = {airline("XX", "Example Air", "EXAMPLE")};
    schedule.aircraft = {aircraft("738", "Boeing 737-800")};
    schedule.flights = {flight("XX", 10, 900, 1000, 0, 1), flight("XX", 12, 1300, 1400, 0, 1)};
    for (auto& flight : schedule.flights) {
        flight.AircraftCode = "738";
        flight.ClassCode = "F";
    }
    schedule.complete();
    return schedule;
}

Terminal::Terminal(const TempFolder& folder) : machine(sound), p(machine.machine, folder.path()) {
    machine.loop.modal = [this](std::string_view screen, const std::function<bool()>& done) {
        shown.emplace_back(screen);
        if (screen == "MsgForm") lastMessage = p.forms.MsgForm.Msg_LABEL.text;
        if (!answers.empty()) {
            const auto answer = std::move(answers.front());
            answers.pop_front();
            answer();
        }
        if (!done()) hideScreen(p, *p.forms.find(screen));
    };
    bindScreens(p);
}

} // namespace gatewise::test
