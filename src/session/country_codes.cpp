#include "session/code_tables.h"

namespace levora::session {

namespace {

// clang-format off
constexpr CountryCode countries[] = {
    {"AFGHANISTAN", "93"}, {"ALASKA", "1907"}, {"ALBANIA", "355"}, {"ALGERIA", "213"},
    {"ANDORRA", "376"}, {"ANGOLA", "244"}, {"ANGUILLA", "1264"}, {"ANTIGUA", "1268"},
    {"ARGENTINA", "54"}, {"ARMENIA", "374"}, {"ARUBA", "297"}, {"ASCENSION", "247"},
    {"AUSTRALIA", "61"}, {"AUSTRIA", "43"}, {"AZERBAIJAN REPUBLIC", "994"}, {"AZORES", "351"},
    {"BAHAMAS", "1242"}, {"BAHARIN", "973"}, {"BANGLADESH", "880"}, {"BARBADOS", "1246"},
    {"BELARUS", "375"}, {"BELGIUM", "32"}, {"BELIZE", "501"}, {"BENIN", "229"}, {"BHUTAN", "975"},
    {"BOLIVIA", "591"}, {"BOSNIA & HERZEGOVINA", "387"}, {"BOTSWANA, REPUBLIC OF", "267"},
    {"BRAZIL", "55"}, {"BRUNEI", "673"}, {"BULGARIA", "359"}, {"BURKINA FASSO", "226"},
    {"BURUNDI", "257"}, {"CANADA", "1"}, {"CANARY ISLAND", "34"}, {"CAPE VERDE", "238"},
    {"CAYMAN ISLAND", "1345"}, {"CENTRAL AFRICAN REPUBLIC", "236"}, {"CHILE", "56"}, {"CHINA", "86"},
    {"CHRISTMAS ISLAND", "61"}, {"CISKEI", "27"}, {"COCOSKEELING ISLAND", "672"}, {"COLOMBIA", "57"},
    {"COOK ISLAND", "682"}, {"COSTA RICA", "506"}, {"CROATIA", "385"}, {"CUBA", "53"},
    {"CYPRUS", "357"}, {"CZECH REPUBLIC", "420"}, {"DIEGO GARCIA", "246"}, {"DJIBOUTI", "253"},
    {"DOMANICCAN REPUBLIC", "1809"}, {"DOMINICA ISLAND", "1767"}, {"EAST TIMOR", "670"},
    {"EGYPT", "20"}, {"EL SALVADOR", "503"}, {"EQUATORIAL GUINEA", "240"}, {"ERITREA", "291"},
    {"ESTONIA", "372"}, {"ETHIOPIA", "251"}, {"FALKLAND ISLAND", "500"}, {"FAROE ISLAND", "298"},
    {"FIJI REPUBLIC", "679"}, {"FINLAND", "358"}, {"FR POLYNESIA", "689"}, {"FRANCE", "33"},
    {"FRENCH GUIANA", "594"}, {"GABONESE REPUBLIC", "241"}, {"GAMBIA", "220"}, {"GEORGIA", "995"},
    {"GIBRALTOR", "350"}, {"GREENLAND", "299"}, {"GUADELOPE", "590"}, {"GUATEMALA", "502"},
    {"GUINEA BISSAU", "245"}, {"GUINEA REPUBLIC", "224"}, {"GUYANA REPUBLIC", "592"},
    {"HAITI REPUBLIC", "509"}, {"HAWAII", "1808"}, {"HUNGARY", "36"}, {"ICELAND", "354"},
    {"INDIA", "11"}, {"INDONESIA", "62"}, {"IRAN", "98"}, {"IRAQ", "964"}, {"IRELAND", "353"},
    {"ISRAEL", "972"}, {"ITALY", "39"}, {"IVORY COAST (COTE D' IVORIE)", "225"}, {"JAMAICA", "1876"},
    {"JAPAN", "81"}, {"JORDAN", "962"}, {"KAMPUCHEA (CAMBODIA)", "855"}, {"KAZAKISTAN", "7"},
    {"KENYA", "254"}, {"KIRGHISTAN", "996"}, {"KIRIBATI", "686"}, {"KUWAIT", "965"}, {"LAOS", "856"},
    {"LATVIA", "371"}, {"LEBANON", "961"}, {"LESOTHO", "266"}, {"LIBERIA", "231"}, {"LIBYA", "218"},
    {"LIECHTENSTEIN", "423"}, {"LITHVANIA", "370"}, {"MACEDONIA", "389"}, {"MADEIRA ISLAND", "351"},
    {"MALAWI", "265"}, {"MALAYSIA", "60"}, {"MALDIVES", "960"}, {"MALI", "223"}, {"MALTA", "356"},
    {"MANGOLIA", "976"}, {"MARIANA ISLAND", "1670"}, {"MARSHALL ISLAND", "692"}, {"MARTINIQUE", "596"},
    {"MAURITANIA", "222"}, {"MAURITIUS", "230"}, {"MAYOTTE", "269"}, {"MEXICO", "52"},
    {"MICRONESIA", "691"}, {"MONTSERRAT", "1664"}, {"MOZAMBIQUE", "258"}, {"NAMIBIA", "264"},
    {"NEPAL", "977"}, {"NETHERLANDS", "31"}, {"NETHERLANDS ANTHILLES", "599"}, {"NEW CALEDONIA", "687"},
    {"NEW ZEALAND", "64"}, {"NICARAGUA", "505"}, {"NIGER", "227"}, {"NIGERIA", "234"},
    {"NIUE ISLAND", "683"}, {"NORFORK ISLAND", "672"}, {"NORTH KOREA", "850"}, {"PAKISTAN", "92"},
    {"PALAU", "680"}, {"PALESTINE", "970"}, {"PANAMA", "507"}, {"PAPUA NEW GUINEA", "675"},
    {"PARAGUAY", "595"}, {"PERU", "51"}, {"PHILIPPINES", "63"}, {"POLAND", "48"}, {"PORTUGAL", "351"},
    {"PUERTO RICO", "1787"}, {"QATAR", "974"}, {"REUNION", "262"}, {"RODRIGUES ISLAND", "230"},
    {"ROMANIA", "40"}, {"RUSSIA", "7"}, {"RWANDESE REPUBLIC", "250"}, {"SAMOA AMERICAN", "684"},
    {"SAMOA WESTERN", "685"}, {"SAN MARINO", "378"}, {"SAUDI ARABIA", "966"}, {"SENEGAL", "221"},
    {"SEYCHELLES", "248"}, {"SIERRALEONE", "232"}, {"SINGAPORE", "65"}, {"SLOVAK REPUBLIC", "421"},
    {"SLOVENIA", "386"}, {"SOLOMAN ISLAND", "677"}, {"SOMALIA DEMOCRATIC REPUBLIC", "252"},
    {"SOUTH AFRICA", "27"}, {"SOUTH KOREA", "82"}, {"SPAIN", "34"}, {"SRILANKA", "94"},
    {"ST.HELENA", "290"}, {"ST. KITTS/NAVIS ISLAND", "1869"}, {"ST.LUCIA", "1758"},
    {"ST. PIERRE & MIQUELIOM", "508"}, {"ST. TOME & PRINCEP", "239"},
    {"ST. VINCENT & THE GRENADIAN", "1784"}, {"SUDAN", "249"}, {"SURINAM", "597"}, {"SWAZILAND", "268"},
    {"SWITZERLAND", "41"}, {"SYRIA", "963"}, {"TAIWAN", "886"}, {"TANZANIA", "255"},
    {"TAZAKISTAN", "992"}, {"THAILAND", "66"}, {"TOGOLESE REPUBLIC", "228"}, {"TOKELAU ISLAND", "690"},
    {"TRANSKEI", "27"}, {"TRINIDAD & TOBAGO", "1868"}, {"TUNISIA", "216"}, {"TURKEY", "90"},
    {"TURKMENISTAN", "993"}, {"TURKS & CAICOS ISLANDS", "1649"}, {"TUVALU", "688"}, {"UAE", "971"},
    {"UK", "44"}, {"UKRAINE", "380"}, {"USA", "1"}, {"UZBEKISTAN", "998"}, {"VANAUTU", "678"},
    {"VATICAN CITY", "39"}, {"VENDA", "27"}, {"VENEZUELA", "58"}, {"VIETNAM", "84"},
    {"VIRGIN ISLAND (BRI)", "1284"}, {"VIRGIN ISLAND (USA)", "1340"}, {"WALLIS & FUTUNA ISLAND", "681"},
    {"YUGOSLAVIA", "381"}, {"ZAIRE", "243"}, {"ZAMBIA", "260"}, {"ZIMBABWE", "263"},
    {"BERMUDA", "1441"}, {"BOPUPATSWANA", "27"}, {"CAMEROON", "237"}, {"CHAD", "235"},
    {"COMOROS", "269"}, {"CONGO", "242"}, {"DENMARK", "45"}, {"ECUADOR", "593"}, {"GERMANY", "49"},
    {"GHANA", "233"}, {"GREECE", "30"}, {"GRENEDA", "1473"}, {"GUAM", "1671"}, {"HONDURAS", "504"},
    {"HONGKONG", "852"}, {"LUXUMBURG", "352"}, {"MACAO", "853"}, {"MADAGASCAR", "261"},
    {"MOLDOVA", "373"}, {"MONACO", "377"}, {"MOROCCO", "212"}, {"MYANMAR", "95"}, {"NAURU", "674"},
    {"NORWAY", "47"}, {"OMAN", "968"}, {"SWEDEN", "46"}, {"TONGA", "676"}, {"UGANDA", "256"},
    {"URUGUAY", "598"}, {"YEMEN", "967"},
};
// clang-format on

} // namespace

std::span<const CountryCode> country_codes() {
    return countries;
}

} // namespace levora::session
