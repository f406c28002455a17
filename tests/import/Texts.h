#pragma once

#include "import/Kinds.h"
#include "import/Sources.h"

#include <string>
#include <vector>

// Small sources of every form, made by hand.

namespace gatewise::importer {

inline const std::string kAirportsDat =
    "1,\"Alpha International "
    "Airport\",\"Alphaville\",\"Freedonia\",\"AAA\",\"KAAA\",40.0,-100.0,1000,-6,\"A\","
    "\"America/Chicago\",\"airport\",\"OurAirports\"\n"
    "2,\"Bravo Field\",\"Bravo \\\"City\\\"\",\"Freedonia\",\"BBB\",\"KBBB\",41.5,-92.5,800,-6,\"A\","
    "\"America/Chicago\",\"airport\",\"OurAirports\"\n"
    "3,\"Ch\xC3\xA1rlie Airport\",\"Charlie\",\"Sylvania\",\"CCC\",\"EGCC\",53.0,-2.0,250,0,\"E\","
    "\"Europe/London\",\"airport\",\"OurAirports\"\n"
    "4,\"No codes\",\"Nowhere\",\"Sylvania\",\\N,\\N,10,10,0,\\N,\"U\",\\N,\"airport\",\"User\"\n"
    "5,\"Broken\",\"Nowhere\",\"Sylvania\",\"DDD\",\"EGDD\",north,10,0,\\N,\"U\",\\N,\"airport\",\"User\"\n";

inline const std::string kAirlinesDat =
    "1,\"Private flight\",\\N,\"-\",\"N/A\",\"\",\"\",\"Y\"\n"
    "10,\"Orrery Air\",\\N,\"X0\",\"ORR\",\"ORRERY\",\"Freedonia\",\"Y\"\n";
inline const std::string kPlanesDat = "\"Airbus A320\",\"320\",\"A320\"\n\"Boeing 737 MAX 10\",\"7MJ\",\\N\n";
inline const std::string kRoutesDat = "X0,10,AAA,1,BBB,2,,0,320 CR2\nX0,10,BBB,2,AAA,1,,0,320\n"
                                      "Y1,11,AAA,1,BBB,2,Y,0,320\nX0,10,AAA,1,CCC,3,,0,763\n";

inline const std::string kAirportsCsv =
    "id,ident,type,name,latitude_deg,longitude_deg,elevation_ft,continent,iso_country,iso_region,"
    "municipality,"
    "scheduled_service,gps_code,iata_code,local_code\n"
    "1,KAAA,large_airport,\"Alpha International "
    "Airport\",40.01,-100.01,1001,NA,US,US-X,Alphaville,yes,KAAA,AAA,\n"
    "2,KQQQ,closed,\"Old Field\",40.2,-100.2,1001,NA,US,US-X,Alphaville,no,KQQQ,QQQ,\n"
    "3,KHEL,heliport,\"Roof\",40.2,-100.2,1001,NA,US,US-X,Alphaville,no,KHEL,HEL,\n";
inline const std::string kNewAirportsCsv =
    "\"id\",\"ident\",\"type\",\"name\",\"latitude_deg\",\"longitude_deg\",\"elevation_ft\",\"municipality\","
    "\"icao_code\",\"iata_code\",\"gps_code\"\n"
    "7,\"US-0001\",\"medium_airport\",\"Bravo\",41.5,-92.5,800,\"Bravo\",\"KBBB\",\"BBB\",\"KBBX\"\n";

inline const std::string kRunwaysCsv =
    "\"id\",\"airport_ref\",\"airport_ident\",\"length_ft\",\"width_ft\",\"surface\",\"lighted\",\"closed\","
    "\"le_ident\",\"le_latitude_deg\",\"le_longitude_deg\",\"le_elevation_ft\",\"le_heading_degT\","
    "\"le_displaced_threshold_ft\",\"he_ident\",\"he_latitude_deg\",\"he_longitude_deg\",\"he_elevation_ft\","
    "\"he_heading_degT\",\"he_displaced_threshold_ft\"\n"
    "1,1,\"KAAA\",10000,150,\"CON\",1,0,\"9\",40,-100.02,,90,,\"27\",40,-99.98,,270,\n"
    "2,2,\"KBBB\",8000,150,\"ASP\",1,0,\"18\",,,,,,\"36\",,,,,\n"
    "3,1,\"KAAA\",80,80,\"ASP\",1,0,\"H1\",,,,,,,,,,,\n"
    "4,1,\"KAAA\",5000,80,\"ASP\",1,1,\"04\",,,,,,\"22\",,,,,\n"
    "5,3,\"EGCC\",9000,150,\"ASP\",1,0,\"05L\",52.99,-2.02,,,,\"23R\",53.01,-1.98,,,\n";
inline const std::string kRadiosCsv =
    "\"id\",\"airport_ref\",\"airport_ident\",\"type\",\"description\",\"frequency_mhz\"\n"
    "1,1,\"KAAA\",\"TWR\",\"TWR\",118.305\n2,1,\"KAAA\",\"TOWER "
    "(09/27)\",,118.3\n3,1,\"KAAA\",\"GND\",,121.9\n"
    "4,1,\"KAAA\",\"CLD\",,124.125\n5,1,\"KAAA\",\"APP\",,120.5\n6,1,\"KAAA\",\"DEP\",,119.1\n"
    "7,1,\"KAAA\",\"TWR\",,loud\n";
inline const std::string kNavaidsCsv =
    "\"id\",\"filename\",\"ident\",\"name\",\"type\",\"frequency_khz\",\"latitude_deg\",\"longitude_deg\","
    "\"slaved_variation_deg\",\"magnetic_variation_deg\"\n"
    "1,\"x\",\"ALP\",\"Alpha\",\"VORTAC\",112300,40,-100.0,5,6.1\n"
    "2,\"x\",\"BR\",\"Bravo\",\"NDB\",341,41.4,-92.5,,2\n3,\"x\",\"DDD\",\"Delta\",\"DME\",111450,1,1,,\n";

inline const std::string kFixesOld =
    "I\n600 Version - data cycle 2009.12, build 20091080, metadata FixXP700.  "
    "Copyright \xA9 2009, A. Body.\n\n"
    " 40.200000 -098.000000 FIXAA\n 40.800000 -096.000000 FIXBB\n"
    " 52.000000 -020.000000 52N20\n99\n";
inline const std::string kFixesNew =
    "A\n1200 Version - data cycle 2107, build 20210712, metadata FixXP1200. Copyright (c) 2021 Body\n\n"
    " 40.20000000  -98.00000000 FIXAA ENRT K3 4530263 FIXAA\n 40.80000000 -96.00000000  FIXBB ENRT K3 "
    "4530263\n"
    " 40.00000000  -99.50000000 FINAL KAAA K3 4608073 IRR089005\n99\n";
inline const std::string kNavOld =
    "I\n810 Version - data cycle 2009.12, build 20091080, metadata NavXP810.\n\n"
    "2  41.40000000 -092.50000000      0   341  50    0.0 BR   BRAVO NDB\n"
    "3  40.00000000 -100.00000000   1000 11230 130    5.0 ALP  ALPHA VORTAC\n"
    "4  40.00000000 -099.97000000   1000 11150  18   89.9 IALP KAAA 09  ILS-cat-I\n"
    "12 40.00000000 -100.00000000   1000 11230 130    0.0 ALP  ALPHA VORTAC DME\n99\n";
inline const std::string kNavNew =
    "I\n1150 Version - data cycle 2107, build 20210712, metadata NavXP1150. Copyright (c) 2021 Body\n\n"
    " 2  41.400000000  -92.500000000 0 341 50 0.000 BR ENRT K3 BRAVO NDB\n"
    " 3  40.000000000 -100.000000000 1000 11230 130 5.000 ALP ENRT K3 ALPHA VORTAC\n"
    " 4  40.000000000  -99.970000000 1000 11150 18 30689.900 IALP KAAA K3 09 ILS-cat-I\n"
    "14  40.0 -99.9 1000 40000 0 89.9 WAAS KAAA K3 09 LP\n99\n";
inline const std::string kAwyOld =
    "I\n640 Version - data cycle 2009.12, build 20091080, metadata AwyXP700.\n\n"
    "ALP   40.000000 -100.000000 FIXAA  40.200000 -098.000000 2 180 450 J1\n"
    "FIXAA  40.200000 -098.000000 FIXBB  40.800000 -096.000000 2 180 450 J1-J2\n"
    "FIXBB  40.800000 -096.000000 BR  41.400000 -092.500000 1 010 170 V1\n99\n";
inline const std::string kAwyNew =
    "I\n1100 Version - data cycle 2107, build 20210712, metadata AwyXP1100. Copyright (c) 2021 Body\n\n"
    "  ALP K3  3 FIXAA K3 11 F 2 180 450 J1\nFIXAA K3 11 FIXBB K3 11 N 2 180 450 J1-J2\n"
    "FIXBB K3 11    BR K3  2 N 1 010 170 V1\nFIXBB K3 11 LOST  K3 11 N 1 010 170 V1\n99\n";

inline const std::string kOnTimePlain =
    "2008,6,2,1,1956,1955,2050,2055,WN,34,N1,54,60,45,-5,1,AAA,BBB,251,2,7,\\N,,\\N,NA,NA,NA,NA,NA\n"
    "2008,6,3,2,1956,2001,2050,2400,WN,34,N1,54,60,45,-5,1,AAA,BBB,251,2,7,1,A,\\N,NA,NA,NA,NA,NA\n"
    "2008,6,31,2,1956,2001,2050,2400,WN,34,N1,54,60,45,-5,1,AAA,BBB,251,2,7,\\N,,\\N,NA,NA,NA,NA,NA\n";
inline const std::string kOnTimeHeaded =
    "Year,Month,DayofMonth,DayOfWeek,DepTime,CRSDepTime,ArrTime,CRSArrTime,UniqueCarrier,FlightNum,TailNum,"
    "ActualElapsedTime,CRSElapsedTime,AirTime,ArrDelay,DepDelay,Origin,Dest,Distance,TaxiIn,TaxiOut,"
    "Cancelled,"
    "CancellationCode,Diverted\n"
    "2008,6,2,1,1956,1955,2050,2055,WN,34,N1,54,60,45,-5,1,AAA,BBB,251,2,7,0,,0\n";
inline const std::string kOnTimeBureau =
    "\"Year\",\"Quarter\",\"Month\",\"DayofMonth\",\"DayOfWeek\",\"FlightDate\",\"Reporting_Airline\","
    "\"DOT_ID_Reporting_Airline\",\"IATA_CODE_Reporting_Airline\",\"Tail_Number\","
    "\"Flight_Number_Reporting_Airline\",\"Origin\",\"OriginCityName\",\"Dest\",\"CRSDepTime\","
    "\"CRSArrTime\","
    "\"Cancelled\",\"CRSElapsedTime\",\"Distance\",\n"
    "2008,2,6,2,1,2008-06-02,\"WN\",19393,\"WN\",\"N1\",\"34\",\"AAA\",\"Alphaville, FR\",\"BBB\",\"1955\","
    "\"2055\",0.00,60.00,251.00,\n";
inline const std::string kOnTimePicked =
    "FL_DATE,OP_UNIQUE_CARRIER,TAIL_NUM,OP_CARRIER_FL_NUM,ORIGIN,DEST,CRS_DEP_TIME,CRS_ARR_TIME,"
    "CRS_ELAPSED_TIME,DISTANCE\n"
    "6/2/2008 12:00:00 AM,\"WN\",\"N1\",\"34\",\"AAA\",\"BBB\",\"1955\",\"2055\",60.00,251.00\n";

inline const std::string kPlaneData =
    "tailnum,type,manufacturer,issue_date,model,status,aircraft_type,engine_type,year\nN050AA\n"
    "N1,Corporation,BOEING,02/13/2004,737-7H4,Valid,Fixed Wing Multi-Engine,Turbo-Fan,2004\n";
inline const std::string kMaster =
    "N-NUMBER,SERIAL NUMBER,MFR MDL CODE,ENG MFR MDL,YEAR MFR,LAST ACTION DATE,\n"
    "1    ,123   ,1384404,52136,2004,20210430,\n";
inline const std::string kAcftref =
    "CODE,MFR,MODEL,TYPE-ACFT,TYPE-ENG,\n1384404,BOEING            ,737-7H4   ,5 ,5 ,\n";
inline const std::string kCarriers = "Code,Description\n\"WN\",\"Southern Winds Co.\"\n\"XYZ\",\"Xylo\"\n";
inline const std::string kOwnFlights = "origin,departure,destination,arrival,airline,number,days\n"
                                       "AAA,0700,BBB,0830,X0,77,12345\nAAA,2500,BBB,0830,X0,78,\n";

/// A kind's name and a source of it, as broken or whole as the text is.
struct Sample {
    Kind kind;
    std::string text;
};

inline std::vector<Sample> samples() {
    return {{Kind::WorldAirports, kAirportsDat},
            {Kind::WorldAirlines, kAirlinesDat},
            {Kind::WorldPlanes, kPlanesDat},
            {Kind::WorldRoutes, kRoutesDat},
            {Kind::Airports, kAirportsCsv},
            {Kind::Airports, kNewAirportsCsv},
            {Kind::Runways, kRunwaysCsv},
            {Kind::Radios, kRadiosCsv},
            {Kind::RadioAids, kNavaidsCsv},
            {Kind::Fixes, kFixesOld},
            {Kind::Fixes, kFixesNew},
            {Kind::NavAids, kNavOld},
            {Kind::NavAids, kNavNew},
            {Kind::Airways, kAwyOld},
            {Kind::Airways, kAwyNew},
            {Kind::OnTime, kOnTimePlain},
            {Kind::OnTime, kOnTimeHeaded},
            {Kind::OnTime, kOnTimeBureau},
            {Kind::OnTime, kOnTimePicked},
            {Kind::Tails, kPlaneData},
            {Kind::Registry, kMaster},
            {Kind::RegistryModels, kAcftref},
            {Kind::Carriers, kCarriers},
            {Kind::OwnFlights, kOwnFlights}};
}

} // namespace gatewise::importer
