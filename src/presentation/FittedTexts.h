#pragma once

#include <QFont>
#include <QHash>
#include <QString>

#include <utility>

class QPainter;

namespace condtree {

/// A text as it is drawn in a place.
struct FittedText {
    QString text;
    /// In pixels.
    int width = 0;
};

/// Measures texts and cuts them to the width of their place, and remembers how: measuring costs
/// more than drawing, and most repaints draw what was drawn before.
class FittedTexts {
public:
    /// The text, with an ellipsis in the place of its end where it is wider than width and isElided
    /// says so, in the painter's font on the painter's device.
    FittedText fit(const QPainter& painter, const QString& text, int width, bool isElided);

    /// How many it remembers at most.
    static constexpr qsizetype kMost = 1000;
    [[nodiscard]] qsizetype count() const { return m_texts.size(); }

private:
    /// By text, width and whether it is elided.
    QHash<std::pair<QString, std::pair<int, bool>>, FittedText> m_texts;
    QFont m_font;
    int m_dpi = 0;
};

} // namespace condtree
