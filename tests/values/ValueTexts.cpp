#include <condtree/values/ValueTexts.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace condtree {

namespace {

CString defaults(LONG, const char16_t*, const char16_t*, const char16_t* defaultText)
{
    return CString::fromUtf16(defaultText);
}

/// Answers with what it was asked for.
CString questions(LONG id, const char16_t* key, const char16_t* section,
                  const char16_t* defaultText)
{
    return CString::number(id) + u'/' + CString::fromUtf16(key) + u'/' + CString::fromUtf16(section)
           + u'/' + CString::fromUtf16(defaultText);
}

/// A language in which every text differs from its default.
CString german(LONG id, const char16_t*, const char16_t*, const char16_t*)
{
    switch (id) {
    case 58:
        return u"Ja"_qs;
    case 59:
        return u"Nein"_qs;
    case 733:
        return u"Datei"_qs;
    case 734:
        return u"St\u00FCckliste"_qs;
    default:
        return u"Artikel"_qs;
    }
}

struct Row {
    const char* name;
    QString from;
    LONG argType;
    LONG condType;
    const char* to;
};

} // namespace

TEST(ValueTexts, AreFetchedByNumberSectionAndDefault)
{
    const ValueTexts texts(questions);
    EXPECT_EQ(texts.yes.toStdString(), "58/TS/Workflow/Yes");
    EXPECT_EQ(texts.no.toStdString(), "59/TS/Workflow/No");
    EXPECT_EQ(texts.file.toStdString(), "733/TS/Workflow/File");
    EXPECT_EQ(texts.billOfMaterials.toStdString(), "734/TS/Workflow/BOM");
    EXPECT_EQ(texts.item.toStdString(), "15/TS/ItemMgr/Item");
}

TEST(ShownValue, IsYesOrNoForAYesNoValue)
{
    const Row rows[] = {
        {"Yes", u"Yes"_qs, 4, 2, "Yes"},
        {"case ignored", u"yES"_qs, 4, 2, "Yes"},
        {"No", u"No"_qs, 4, 2, "No"},
        {"empty", u""_qs, 4, 2, "No"},
        {"a blank more", u"Yes "_qs, 4, 2, "No"},
        {"another text", u"1"_qs, 4, 2, "No"},
        {"before the object type is looked at", u"4"_qs, 4, 5, "No"},
        {"for any condition", u"YES"_qs, 4, 1, "Yes"},
    };
    const ValueTexts texts(defaults);
    for (const Row& row : rows)
        EXPECT_EQ(texts.shown(row.from, row.argType, row.condType).toStdString(), row.to)
            << row.name;
}

TEST(ShownValue, IsTheLabelOfAnObjectType)
{
    const Row rows[] = {
        {"file", u"1"_qs, 1, 5, "File"},
        {"bill of materials", u"3"_qs, 1, 5, "BOM"},
        {"item", u"4"_qs, 1, 5, "Item"},
        {"another number", u"2"_qs, 1, 5, "File"},
        {"no number", u"x3"_qs, 1, 5, "File"},
        {"empty", u""_qs, 1, 5, "File"},
        {"a number at the start", u" 3 pieces"_qs, 1, 5, "BOM"},
        {"a longer number", u"34"_qs, 1, 5, "File"},
        {"whatever the other type is", u"4"_qs, 0, 5, "Item"},
    };
    const ValueTexts texts(defaults);
    for (const Row& row : rows)
        EXPECT_EQ(texts.shown(row.from, row.argType, row.condType).toStdString(), row.to)
            << row.name;
}

TEST(ShownValue, IsTheStoredOneForEverythingElse)
{
    const ValueTexts texts(defaults);
    for (const LONG argType : {-1, 0, 1, 2, 3, 5, 6}) {
        for (const LONG condType : {-1, 0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 11}) {
            const CString stored = u" >=3 "_qs;
            const CString shown = texts.shown(stored, argType, condType);
            EXPECT_EQ(shown.constData(), stored.constData()) << argType << ", " << condType;
        }
    }
}

TEST(ShownValue, IsInTheLanguageOfTheTexts)
{
    const ValueTexts texts(german);
    EXPECT_EQ(texts.shown(u"yes"_qs, 4, 2).toStdString(), "Ja");
    EXPECT_EQ(texts.shown(u"Ja"_qs, 4, 2).toStdString(), "Nein");
    EXPECT_EQ(texts.shown(u"1"_qs, 1, 5).toStdString(), "Datei");
    EXPECT_EQ(texts.shown(u"3"_qs, 1, 5), u"St\u00FCckliste"_qs);
    EXPECT_EQ(texts.shown(u"4"_qs, 1, 5).toStdString(), "Artikel");
}

TEST(StoredValue, IsYesOnlyForTheExactLabel)
{
    const Row rows[] = {
        {"label", u"Ja"_qs, 4, 2, "Yes"},
        {"another case", u"ja"_qs, 4, 2, "No"},
        {"the other label", u"Nein"_qs, 4, 2, "No"},
        {"the English word in another language", u"Yes"_qs, 4, 2, "No"},
        {"empty", u""_qs, 4, 2, "No"},
        {"a blank more", u"Ja "_qs, 4, 2, "No"},
        {"before the object type is looked at", u"Artikel"_qs, 4, 5, "No"},
    };
    const ValueTexts texts(german);
    for (const Row& row : rows)
        EXPECT_EQ(texts.stored(row.from, row.argType, row.condType).toStdString(), row.to)
            << row.name;
}

TEST(StoredValue, IsNoForAYesInAnotherCase)
{
    const ValueTexts texts(defaults);
    EXPECT_EQ(texts.stored(u"Yes"_qs, 4, 2).toStdString(), "Yes");
    EXPECT_EQ(texts.stored(u"yes"_qs, 4, 2).toStdString(), "No");
}

TEST(StoredValue, IsTheNumberOfAnObjectType)
{
    const Row rows[] = {
        {"bill of materials", u"BOM"_qs, 1, 5, "3"},
        {"item", u"Item"_qs, 1, 5, "4"},
        {"file", u"File"_qs, 1, 5, "1"},
        {"another case", u"bom"_qs, 1, 5, "1"},
        {"another text", u"4"_qs, 1, 5, "1"},
        {"empty", u""_qs, 1, 5, "1"},
        {"whatever the other type is", u"BOM"_qs, 0, 5, "3"},
    };
    const ValueTexts texts(defaults);
    for (const Row& row : rows)
        EXPECT_EQ(texts.stored(row.from, row.argType, row.condType).toStdString(), row.to)
            << row.name;
}

TEST(StoredValue, IsTheShownOneForEverythingElse)
{
    const ValueTexts texts(defaults);
    for (const LONG argType : {-1, 0, 1, 2, 3, 5, 6}) {
        for (const LONG condType : {-1, 0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 11}) {
            const CString shown = u" BOM "_qs;
            const CString stored = texts.stored(shown, argType, condType);
            EXPECT_EQ(stored.constData(), shown.constData()) << argType << ", " << condType;
        }
    }
}

TEST(StoredValue, ReversesTheShownOne)
{
    const ValueTexts texts(german);
    for (const QString& value : {u"Yes"_qs, u"No"_qs})
        EXPECT_EQ(texts.stored(texts.shown(value, 4, 2), 4, 2), value);
    for (const QString& value : {u"1"_qs, u"3"_qs, u"4"_qs})
        EXPECT_EQ(texts.stored(texts.shown(value, 1, 5), 1, 5), value);
}

} // namespace condtree
