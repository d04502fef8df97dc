#include "vedic/birth_star_groups.h"

namespace orvex::vedic {

// clang-format off
const std::array<NameGroup, 4> kVarnas = {{
    {"Kshatriya", {"Aries", "Leo", "Sagittarius"}},
    {"Vaishya",   {"Taurus", "Virgo", "Capricorn"}},
    {"Shudra",    {"Gemini", "Libra", "Aquarius"}},
    {"Brahmin",   {"Cancer", "Scorpio", "Pisces"}},
}};

const std::array<NameGroup, 3> kGanas = {{
    {" - Devta",    {"D"}},
    {" - Manushya", {"M"}},
    {" - Rakshasa", {"R"}},
}};

const std::array<NameGroup, 3> kNadis = {{
    {"Adi",    {"Ashwini", "Ardra", "Hasta", "Jyeshtha", "Mula", "Purvabhadrapada", "Punarvasu",
               "Shatbhisha", "Uttaraphalguni"}},
    {"Madhya", {"Anuradha", "Bharani", "Chitra", "Dhanishtha", "Mrigshirsha", "Purvaphalguni",
               "Purvashadha", "Pushya", "Uttarabhadrapada"}},
    {"Antya",  {"Ashlesha", "Krittika", "Magha", "Revati", "Rohini", "Shravana", "Swati",
               "Uttarashadha", "Vishakha"}},
}};

const std::array<NameGroup, 14> kYonis = {{
    {" - Horse (Ashwa)",    {"Ashwini", "Shatbhisha"}},
    {" - Elephant (Gaja)",  {"Bharani", "Revati"}},
    {" - Sheep (Mesha)",    {"Krittika", "Pushya"}},
    {" - Serpent (Sarpa)",  {"Rohini", "Mrigshirsha"}},
    {" - Dog (Shwaan)",     {"Mula", "Ardra"}},
    {" - Cat (Marjar)",     {"Punarvasu", "Ashlesha"}},
    {" - Rat (Mushak)",     {"Magha", "Purvaphalguni"}},
    {" - Cow (Gow)",        {"Uttaraphalguni", "Uttarabhadrapada"}},
    {" - Buffalo (Mahish)", {"Hasta", "Swati"}},
    {" - Tiger (Vyaghra)",  {"Chitra", "Vishakha"}},
    {" - Lion (Simha)",     {"Dhanishtha", "Purvabhadrapada"}},
    {" - Deer (Mriga)",     {"Anuradha", "Jyeshtha"}},
    {" - Monkey (Vanar)",   {"Purvashadha", "Shravana"}},
    {" - Mongoose (Nakul)", {"Uttarashadha", "Abhijit"}},
}};

const std::array<NameGroup, 5> kVasyas = {{
    {"Dwipad",     {"Gemini", "Virgo", "Libra", "Aquarius"}},
    {"Chatushpad", {"Aries", "Taurus"}},
    {"Jalachar",   {"Cancer", "Pisces"}},
    {"Vanchar",    {"Leo"}},
    {"Keet",       {"Scorpio"}},
}};

const std::array<NameGroup, 5> kRajjus = {{
    {" - Shiro",  {"Chitra", "Mrigshirsha", "Dhanishtha"}},
    {" - Kantha", {"Rohini", "Ardra", "Swati", "Shravana", "Hasta", "Shatbhisha"}},
    {" - Nabhi",  {"Krittika", "Punarvasu", "Vishakha", "Purvabhadrapada", "Uttarashadha",
                  "Uttaraphalguni"}},
    {" - Kati",   {"Pushya", "Bharani", "Purvaphalguni", "Anuradha", "Uttarabhadrapada",
                  "Purvashadha"}},
    {" - Pada",   {"Ashwini", "Ashlesha", "Magha", "Mula", "Jyeshtha", "Revati"}},
}};
// clang-format on

}  // namespace orvex::vedic
