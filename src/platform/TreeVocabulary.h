#pragma once

#include <condtree/platform/WinTypes.h>

class QPainter;
class QWidget;

// The vocabulary of a tree control, as plain values.
namespace condtree {

struct TreeItemTag;
/// A row of the tree; null is none. A handle whose row is gone names nothing, and never another
/// row.
using HTREEITEM = TreeItemTag*;

inline const HTREEITEM TVI_ROOT = reinterpret_cast<HTREEITEM>(~std::uintptr_t{0xFFFF});
inline const HTREEITEM TVI_FIRST = reinterpret_cast<HTREEITEM>(~std::uintptr_t{0xFFFE});
inline const HTREEITEM TVI_LAST = reinterpret_cast<HTREEITEM>(~std::uintptr_t{0xFFFD});

/// Where a point lies.
enum : unsigned {
    TVHT_NOWHERE = 0x1,
    TVHT_ONITEMICON = 0x2,
    TVHT_ONITEMLABEL = 0x4,
    TVHT_ONITEMINDENT = 0x8,
    TVHT_ONITEMBUTTON = 0x10,
    TVHT_ONITEMRIGHT = 0x20,
    TVHT_ONITEMSTATEICON = 0x40,
    TVHT_ABOVE = 0x100,
    TVHT_BELOW = 0x200,
    TVHT_TORIGHT = 0x400,
    TVHT_TOLEFT = 0x800
};

/// What is held down while the mouse is used.
enum : unsigned {
    MK_LBUTTON = 0x1,
    MK_RBUTTON = 0x2,
    MK_SHIFT = 0x4,
    MK_CONTROL = 0x8,
    MK_MBUTTON = 0x10
};

/// The stages of drawing.
enum : DWORD {
    CDDS_PREPAINT = 0x1,
    CDDS_POSTPAINT = 0x2,
    CDDS_PREERASE = 0x3,
    CDDS_POSTERASE = 0x4,
    CDDS_ITEM = 0x10000,
    CDDS_ITEMPREPAINT = CDDS_ITEM | CDDS_PREPAINT,
    CDDS_ITEMPOSTPAINT = CDDS_ITEM | CDDS_POSTPAINT,
    CDDS_ITEMPREERASE = CDDS_ITEM | CDDS_PREERASE,
    CDDS_ITEMPOSTERASE = CDDS_ITEM | CDDS_POSTERASE,
    CDDS_SUBITEM = 0x20000
};

/// The answers to a stage of drawing.
enum : LRESULT {
    CDRF_DODEFAULT = 0x0,
    CDRF_NEWFONT = 0x2,
    CDRF_SKIPDEFAULT = 0x4,
    CDRF_NOTIFYPOSTPAINT = 0x10,
    CDRF_NOTIFYITEMDRAW = 0x20
};

/// The codes of notifications.
enum : int { NM_CLICK = -2, NM_CUSTOMDRAW = -12 };

struct NMHDR {
    QWidget* hwndFrom;
    std::uintptr_t idFrom;
    int code;
};

/// A stage of drawing: the painter, the rectangle to draw and the row, if the stage is a row's.
struct NMTVCUSTOMDRAW {
    NMHDR hdr;
    DWORD dwDrawStage;
    QPainter* hdc;
    RECT rc;
    HTREEITEM dwItemSpec;
};

} // namespace condtree
