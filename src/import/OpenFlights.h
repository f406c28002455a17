#pragma once

#include "import/ReadRows.h"

// The four tables without a header line: airports, airlines, planes, routes.

namespace gatewise::importer {

Table<AirportIn> readWorldAirports(const Reading& reading);
Table<AirlineIn> readWorldAirlines(const Reading& reading);
Table<PlaneIn> readWorldPlanes(const Reading& reading);
Table<RouteIn> readWorldRoutes(const Reading& reading);

} // namespace gatewise::importer
