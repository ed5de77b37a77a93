#pragma once

#include <QIcon>
#include <QPalette>
#include <QSize>
#include <QString>

class QPainter;
class QRect;

namespace condtree {

/// The box over a cell as it is drawn: flat, in the colours of the rows around it.
struct ComboFace {
    QPalette palette;
    QIcon icon;
    QSize iconSize;
    QString text;
    /// What the list is searched for; while there is any, it stands in place of icon and text,
    /// between a magnifier and a caret.
    QString searched;
    bool isOpen = false;
    /// Of the arrow at the right.
    int arrowWidth = 0;
    int margin = 0;

    void paint(QPainter& painter, const QRect& rect) const;
};

} // namespace condtree
