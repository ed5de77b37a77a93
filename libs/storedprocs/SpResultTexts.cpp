#include "SpConnect.h"
#include "SpTransitions.h"

#include <condtree/platform/ResultTexts.h>

namespace condtree {

namespace {

struct OwnText {
    HRESULT code;
    LONG id; ///< Persisted by translations; append only.
    const char16_t* english;
};

// The one table of the messages of our own codes.
constexpr OwnText kOwnTexts[] = {
    {SP_E_CHANGED, 1,
     u"The condition was saved by somebody else after it was loaded; your changes were not saved. "
     u"Load the condition again and repeat your changes."},
    {SP_E_BAD_TEXT, 2,
     u"A text holds a character that the database cannot hold; your changes were not saved. "
     u"Remove the character and save again."},
    {SP_E_TOO_LONG, 3,
     u"A text is larger than 16 MiB, which the database cannot hold; your changes were not saved. "
     u"Shorten the text and save again."},
};

} // namespace

void SpAddResultTexts(ResultTexts& texts)
{
    const CString place = QStringLiteral("StoredProcs"); // both the key and the section
    for (const OwnText& own : kOwnTexts)
        texts.add({own.code, own.id, place, place, QStringView(own.english).toString()});
}

} // namespace condtree
