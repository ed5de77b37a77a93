#pragma once

#include <condtree/editing/KindList.h>

#include <ostream>
#include <vector>

namespace condtree {

inline std::ostream& operator<<(std::ostream& out, const KindListFor& list)
{
    return out << "top level " << list.isTopLevel << ", placeholder " << list.isPlaceholder
               << ", vault " << list.vaultType << ", tree " << list.treeType << ", transition "
               << list.transitionType << ", setting " << list.childRefStateOffered;
}

namespace test {

/// Every row in every set-up.
inline std::vector<KindListFor> allKindLists()
{
    std::vector<KindListFor> lists;
    for (unsigned bits = 0; bits < 8; ++bits) {
        for (const LONG vault : {0, 1, 2}) {
            for (const LONG tree : {0, 1, 2}) {
                for (const LONG transition : {0, 1, 2})
                    lists.push_back({(bits & 1) != 0, (bits & 2) != 0, KiroVaultType(vault),
                                     TreeType(tree), transition, (bits & 4) != 0});
            }
        }
    }
    return lists;
}

} // namespace test
} // namespace condtree
