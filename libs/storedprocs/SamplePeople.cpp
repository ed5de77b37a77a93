#include "SampleTables.h"

namespace condtree::sample {

namespace {

constexpr const char16_t* kGroups[] = {
    u"Administrators", u"Design Engineering", u"Manufacturing",    u"Quality",
    u"Purchasing",     u"Project Management", u"Document Control", u"External Partners",
};

// Invented people. Service accounts have no full name.
constexpr User kUsers[] = {
    {u"admin", u"Administrator", Administrators | DocumentControl, u"1"},
    {u"alindqvist", u"Astrid Lindqvist", Design, u"1"},
    {u"bkowalski", u"Bartosz Kowalski", Design, u"1"},
    {u"cmoreau", u"Camille Moreau", Quality, u"1"},
    {u"dokafor", u"Daniel Okafor", Manufacturing, u"0"},
    {u"elaine", u"Eero Laine", Design | Projects, nullptr},
    {u"fhoffmann", u"Friederike Hoffmann", Quality | DocumentControl, u"1"},
    {u"gdeluca", u"Giulia De Luca", Purchasing, nullptr},
    {u"hnakamura", u"Haruto Nakamura", Design, u"0"},
    {u"ijansen", u"Ilse Jansen", Projects, u"1"},
    {u"jalvarez", u"Joaquín Álvarez", Manufacturing, nullptr},
    {u"kstrand", u"Kåre Strand", Design, nullptr},
    {u"lpetrova", u"Ludmila Petrova", Quality, u"0"},
    {u"mfarouk", u"Mona Farouk", Purchasing, u"1"},
    {u"nsharma", u"Nikhil Sharma", Design, nullptr},
    {u"oduarte", u"Olívia Duarte", Projects, nullptr},
    {u"pnovak", u"Petr Novák", Manufacturing, u"1"},
    {u"qzhang", u"Qing Zhang", Design, u"0"},
    {u"rmcallister", u"Rory McAllister", Manufacturing, nullptr},
    {u"sbrandt", u"Søren Brandt", Quality, u"1"},
    {u"tnguyen", u"Thảo Nguyễn", Design, nullptr},
    {u"uyildiz", u"Uğur Yıldız", Purchasing, u"0"},
    {u"vpopescu", u"Viorica Popescu", DocumentControl, u"1"},
    {u"wdupont", u"William Dupont", Projects, nullptr},
    {u"xrivera", u"Ximena Rivera", Design, nullptr},
    {u"ytanaka", u"田中 陽子", Quality, u"1"},
    {u"zhorvat", u"Zvonimir Horvat", Manufacturing, nullptr},
    {u"abeaumont", u"Adèle Beaumont", Design | DocumentControl, u"1"},
    {u"bdlamini", u"Bongani Dlamini", Projects, u"0"},
    {u"ceriksson", u"Cajsa Eriksson", Design, nullptr},
    {u"dpapadakis", u"Dimitris Papadakis", Manufacturing, nullptr},
    {u"eobrien", u"Eileen O'Brien", Purchasing, u"1"},
    {u"fcosta", u"Fábio Costa", Design, nullptr},
    {u"gweiss", u"Greta Weiß", Quality, u"1"},
    {u"hbakker", u"Hendrik Bakker", Manufacturing, u"0"},
    {u"iivanova", u"Ирина Иванова", Design, nullptr},
    {u"jkim", u"김지훈", Design, u"1"},
    {u"kmwangi", u"Kamau Mwangi", Projects, nullptr},
    {u"lschneider", u"Lukas Schneider", Manufacturing, nullptr},
    {u"mlsilva", u"Maria Silva", Purchasing, u"1"},
    {u"mrsilva", u"Maria Silva", Quality, nullptr}, // people do share names
    {u"nhaddad", u"Nadia Haddad", Design, u"0"},
    {u"ohansen", u"Ole Hansen", Manufacturing, nullptr},
    {u"plefebvre", u"Pauline Lefèbvre", DocumentControl, u"1"},
    {u"rsingh", u"Ranjit Singh", Design, nullptr},
    {u"sgarcia", u"Sofía García Peña", Projects | Quality, u"1"},
    {u"tberg", u"Tove Berg", Design, nullptr},
    {u"unowak", u"Urszula Nowak", Purchasing, nullptr},
    {u"vkumar", u"Vijay Kumar", Manufacturing, u"0"},
    {u"wmueller", u"Wiebke Müller-Brandt", Quality, u"1"},
    {u"ycohen", u"Yael Cohen", Design, nullptr},
    {u"zszabo", u"Zoltán Szabó", Manufacturing, nullptr},
    {u"partner.casting", u"Casting Works (partner)", Partners, nullptr},
    {u"partner.coating", u"Coating Services (partner)", Partners, nullptr},
    {u"partner.motors", u"Motor Supply (partner)", Partners, u"0"},
    {u"partner.testlab", u"Test Laboratory (partner)", Partners | Quality, nullptr},
    {u"svc.scanner", u"", DocumentControl, nullptr},
    {u"svc.import", u"", Administrators, u"0"},
    {u"svc.archive", u"", Administrators, nullptr},
    {u"shopfloor1", u"", Manufacturing, nullptr},
};

// Other entries than 24: the language (1), the date style (7) and the start page (31).
constexpr Setting kSettings[] = {
    {1, 1, u"en"}, {1, 7, u"120"}, {1, 31, u"workflows"}, {2, 1, u"sv"},  {3, 1, u"pl"},
    {4, 1, u"fr"}, {4, 7, u"103"}, {7, 1, u"de"},         {7, 7, u"104"}, {26, 1, u"ja"},
};

} // namespace

std::span<const char16_t* const> groups()
{
    return kGroups;
}

std::span<const User> users()
{
    return kUsers;
}

std::span<const Setting> settings()
{
    return kSettings;
}

} // namespace condtree::sample
