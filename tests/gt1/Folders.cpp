#include "gt1/Folders.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace gatewise::gt1 {

namespace fs = std::filesystem;

TableTexts tinyWorld() {
    return {
        {"airports.csv", "iata,icao,name,city,elevation_ft,latitude,longitude\n"
                         "AAA,KAAA,Alpha Field,\"Alpha, North\",13,40.5,-73.75\n"
                         "BBB,KBBB,Bravo Intl,Bravo,-11,41.9786,-87.9048\n"
                         "CCC,CCC,Charlie,Charlie,8361,-0.1,179.99\n"},
        {"runways.csv", "airport,runway,latitude,longitude,heading_true,heading_magnetic,ils,ils_frequency\n"
                        "AAA,04L,40.49,-73.76,30.61,43.81,IAAA,110.90\n"
                        "AAA,22R,40.51,-73.74,210.61,223.81,NO ILS,\n"
                        "CCC,09,-0.1,179.98,90,88,NO ILS,\n"},
        {"radios.csv", "airport,approach,delivery,departure,ground,radio5,tower,radio7\n"
                       "AAA,125.70,135.05,135.90,121.65,,119.10,\n"
                       "BBB,,,,,,120.75,\n"
                       "CCC,,,,,,,\n"},
        {"airlines.csv", "code,name,callsign\n"
                         "X0,Example Airways,EXAMPLE\n"
                         "QQ9,\"Quote \"\"Q\"\" Lines\",QUOTE\n"},
        {"aircraft.csv", "code,name,climb_fpm,descent_fpm,cruise_altitude_ft,cruise_speed_kt,pf_company,"
                         "pf_aircraft\n"
                         "320,Airbus A320,2300,2000,37000,258,Airbus,A320\n"
                         "AT7,ATR ATR 72,1200,-1500,17000,215,ATR,ATR 72\n"},
        {"flights.csv", "origin,departure,destination,arrival,miles,days,airline,number,aircraft,class,meals,"
                        "reserved,plan\n"
                        "AAA,0005,BBB,0210,640,1234567,X0,1,320,A,B L D S Bev,,1\n"
                        "AAA,2359,CCC,0600,7000,1,QQ9,9999,320,G,,x,2\n"
                        "BBB,0735,AAA,1000,640,67,X0,2,AT7,F,S Bev,,3\n"},
        {"vor.csv", "ident,name,latitude,longitude,frequency\n"
                    "PUT,PUTNAM,41.955498,-71.84417,117.40\n"
                    "PUT,PUTMAN,-10.25,20.5,112.00\n"},
        {"ndb.csv", "ident,name,latitude,longitude,frequency\n"
                    "AB,ALBA,61.39528,-6.681111,381.0\n"},
        {"fixes.csv", "name,key,latitude,longitude\n"
                      "53N20,53N20,53,-20\n"
                      "BAKER,BAKER.2,12,13.000001\n"},
        {"jets.csv", "key,name,description,latitude,longitude,kind,frequency\n"
                     "LINDY,LINDY,Intersection - LINDY,51.5,-0.5,I,\n"
                     "STU,STU,STRUMBLE,51.99,-5.04,V,113.10\n"},
        {"plans.csv", "plan,origin,destination,sequence,kind,fix,airway\n"
                      "1,AAA,BBB,1,H,STU,\n"
                      "1,AAA,BBB,2,V,PUT.2,J42\n"
                      "1,AAA,BBB,3,N,AB,J42\n"
                      "1,AAA,BBB,4,I,BAKER.2,UL607\n"
                      "2,AAA,CCC,0,,,\n"
                      "3,BBB,AAA,1,I,53N20,\n"},
    };
}

void writeFolder(const TableTexts& files, const fs::path& folder) {
    fs::create_directories(folder);
    for (const auto& [name, text] : files) std::ofstream(folder / name, std::ios::binary) << text;
}

std::map<std::string, std::string> readFolder(const fs::path& folder) {
    std::map<std::string, std::string> out;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        if (!it->is_regular_file()) continue;
        std::ostringstream text;
        text << std::ifstream(it->path(), std::ios::binary).rdbuf();
        out[it->path().filename().string()] = text.str();
    }
    return out;
}

void edit(std::string& text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    text.replace(at, from.size(), to);
}

fs::path sampleFolder() {
    return fs::path(GATEWISE_TEST_SOURCE_DIR) / "data" / "sample";
}

fs::path smallSampleFolder() {
    return fs::path(GATEWISE_TEST_SOURCE_DIR) / "data" / "sample-small";
}

} // namespace gatewise::gt1
