#pragma once

#include <QtGlobal>

/// Marks what a library of the project offers to hosts; everything else stays hidden.
#define CONDTREE_EXPORT Q_DECL_EXPORT
