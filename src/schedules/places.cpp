#include "schedules/places.h"

namespace levora::schedules {

std::vector<std::string> city_names(Raipur raipur) {
    std::vector<std::string> cities = {
        "Mumbai",    "Kolkata",  "Delhi",   "Chennai",    "Agra",     "Ahmedabad", "Allahabad",  "Amritsar",
        "Bangaluru", "Bhopal",   "Cochin",  "Hyderabad",  "Indore",   "Jabalpur",  "Jamshedpur", "Kanpur",
        "Lucknow",   "Ludhiana", "Madurai", "Nagpur",     "Patna",    "Pune",      "Salem",      "Solapur",
        "Srinagar",  "Surat",    "Trichy",  "Trivendram", "Vadodara", "Varanasi"};
    if (raipur == Raipur::listed) cities.emplace_back("Raipur");
    cities.emplace_back("Other");
    return cities;
}

std::vector<std::string> schedule_state_names() {
    return {"Andhra Pradesh",
            "Andmaan And Nicobar Island",
            "Arunachal Pradesh",
            "Assam",
            "Bihar",
            "Chhattisgarh",
            "Dadar And Nagar Haveli",
            "Daman And Diu",
            "Delhi",
            "Goa",
            "Gujarat",
            "Haryana",
            "Himachal Pradesh",
            "Jammu and Kashmir",
            "Jharkhand",
            "Kerala",
            "Lakshwadeep",
            "Madhya Pradesh",
            "Maharashtra",
            "Manipur",
            "Meghalaya",
            "Mizoram",
            "Nagaland",
            "Odisha",
            "Punjab",
            "Pondicherry",
            "Rajasthan",
            "Sikkim",
            "Tamil Nadu",
            "Tripura",
            "Uttar Pradesh",
            "Uttarakhand",
            "West Bengal",
            "Telangana",
            "Others"};
}

} // namespace levora::schedules
