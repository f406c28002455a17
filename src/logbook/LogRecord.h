#pragma once

#include "platform/Binary.h"

namespace gatewise {

/// Entries that the log book can hold.
inline constexpr int kLogEntries = 10000;

/// LogBook.gt1
struct LogRecord {
    double date = 0; // days since 30 December 1899
    FixedText<4> departureIcao;
    FixedText<4> arrivalIcao;
    FixedText<35> departureName;
    FixedText<35> arrivalName;
    FixedText<50> aircraft;
    std::int16_t scheduledDeparture = 0; // HHMM, as the three below
    std::int16_t scheduledArrival = 0;
    std::int16_t actualDeparture = 0;
    std::int16_t actualArrival = 0;
    float dayHours = 0;
    float nightHours = 0;
    float instrumentHours = 0;
    FixedText<39> airline;
    std::int16_t flightNumber = 0;
    FixedText<150> comments;

    static constexpr void fields(auto& r, auto&& f) {
        f("date", r.date), f("departureIcao", r.departureIcao), f("arrivalIcao", r.arrivalIcao);
        f("departureName", r.departureName), f("arrivalName", r.arrivalName), f("aircraft", r.aircraft);
        f("scheduledDeparture", r.scheduledDeparture), f("scheduledArrival", r.scheduledArrival);
        f("actualDeparture", r.actualDeparture), f("actualArrival", r.actualArrival);
        f("dayHours", r.dayHours), f("nightHours", r.nightHours), f("instrumentHours", r.instrumentHours);
        f("airline", r.airline), f("flightNumber", r.flightNumber), f("comments", r.comments);
    }
};
static_assert(recordSize<LogRecord>() == 347);

/// logrecords.gt1, the exchange file with the companion in the simulator
struct LogExchangeRecord {
    std::int16_t index = 0; // of the log entry
    FixedText<4> departureIcao;
    FixedText<35> departureName;
    FixedText<4> arrivalIcao;
    FixedText<35> arrivalName;
    FixedText<44> flight; // airline name, blank, flight number
    std::int16_t scheduledDeparture = 0;
    std::int16_t scheduledArrival = 0;
    std::int16_t actualDeparture = 0;
    std::int16_t actualArrival = 0;

    static constexpr void fields(auto& r, auto&& f) {
        f("index", r.index), f("departureIcao", r.departureIcao), f("departureName", r.departureName);
        f("arrivalIcao", r.arrivalIcao), f("arrivalName", r.arrivalName), f("flight", r.flight);
        f("scheduledDeparture", r.scheduledDeparture), f("scheduledArrival", r.scheduledArrival);
        f("actualDeparture", r.actualDeparture), f("actualArrival", r.actualArrival);
    }
};
static_assert(recordSize<LogExchangeRecord>() == 132);

} // namespace gatewise
