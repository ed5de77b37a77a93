#pragma once

#include <condtree/platform/IconLibrary.h>
#include <condtree/presentation/ImgLst.h>

#include <optional>

namespace condtree {

/// The two image lists of the control: one picture a row, and the operators' pictures.
class ConditionImages {
public:
    /// Makes the lists on the first call, of pictures of iconSize, the row list with 8 bits a pixel
    /// on a screen of less than 24, and appends the library's pictures to them on every call. A row
    /// picture that the library lacks is blank, so that the indices stay; a strip that it lacks is
    /// left out. Without the library the lists stay empty, and nothing is reported.
    void append(IconLibrary& library, const QSize& iconSize, int bitsPerPixel);

    /// Null before the first append.
    [[nodiscard]] const ImgLst* rows() const { return m_rows ? &*m_rows : nullptr; }
    /// Null before the first append.
    [[nodiscard]] const ImgLst* operators() const { return m_operators ? &*m_operators : nullptr; }

private:
    std::optional<ImgLst> m_rows;
    std::optional<ImgLst> m_operators;
};

} // namespace condtree
