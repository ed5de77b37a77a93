#pragma once

#include <condtree/platform/IconLibrary.h>
#include <condtree/presentation/ImgLst.h>

#include <QIcon>

#include <memory>

namespace condtree {

/// The two image lists of the control: one picture a row, and the operators' pictures.
class ConditionImages {
public:
    /// Makes the lists on the first call, of pictures of iconSize, the row list with 8 bits a pixel
    /// on a screen of less than 24, and appends the library's pictures to them on every call. A row
    /// picture that the library lacks is blank, so that the indices stay; a strip that it lacks is
    /// left out. Without the library the lists stay empty, and nothing is reported.
    /// The library is asked again when pictures are drawn in another resolution: it must outlive
    /// the lists.
    void append(IconLibrary& library, const QSize& iconSize, int bitsPerPixel);

    /// Null before the first append.
    [[nodiscard]] const ImgLst* rows() const { return m_rows.get(); }
    /// Null before the first append.
    [[nodiscard]] const ImgLst* operators() const { return m_operators.get(); }

    /// A picture of the row list for views; a null icon for an index outside it.
    [[nodiscard]] QIcon rowIcon(int index) const;

private:
    std::shared_ptr<ImgLst> m_rows;
    std::shared_ptr<ImgLst> m_operators;
};

} // namespace condtree
