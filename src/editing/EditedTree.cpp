#include "EditedTree.h"

namespace condtree {

EditedTree::~EditedTree() = default;

} // namespace condtree
