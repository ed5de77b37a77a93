#pragma once

#include <condtree/platform/TextRef.h>

namespace condtree {

/// The localised texts that stand for stored values, fetched once for a whole walk over records.
struct ValueTexts {
    explicit ValueTexts(const StringSource& strings);

    CString yes, no;
    CString file, billOfMaterials, item;

    /// What a record's value shows: yes/no values and object types by their labels, others as is.
    [[nodiscard]] CString shown(const CString& stored, LONG argType, LONG condType) const;
    /// What a shown value is stored as; the reverse of shown. Yes and the object types are compared
    /// exactly, everything else is "No" or a file.
    [[nodiscard]] CString stored(const CString& shownText, LONG argType, LONG condType) const;
};

} // namespace condtree
