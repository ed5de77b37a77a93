#pragma once

#include <condtree/refdata/RegFileStore.h>

#include <deque>
#include <functional>
#include <utility>
#include <vector>

namespace condtree::test {

/// A store on files whose calls are noted, and may fail at will.
class ScriptedStore final : public RegistryStore {
public:
    explicit ScriptedStore(RegFilePaths paths)
        : m_store(std::move(paths))
    {
    }

    /// The results that queries answer with instead of asking; ERROR_SUCCESS asks, and so does the
    /// end.
    std::deque<LONG> queryResults;
    /// Called at the beginning of each query.
    std::function<void()> duringQuery;
    LONG closeResult = ERROR_SUCCESS;

    // What was asked for.
    std::vector<std::pair<HKEY, CString>> opened;
    std::vector<std::pair<HKEY, CString>> created;
    DWORD access = 0;
    int queries = 0;
    int closed = 0;

    LONG openKey(HKEY root, const CString& subKey, DWORD wanted, HKEY& out) override
    {
        opened.emplace_back(root, subKey);
        access = wanted;
        return m_store.openKey(root, subKey, wanted, out);
    }
    LONG createKey(HKEY root, const CString& subKey, DWORD wanted, HKEY& out) override
    {
        created.emplace_back(root, subKey);
        access = wanted;
        return m_store.createKey(root, subKey, wanted, out);
    }
    LONG queryValue(HKEY key, const CString& name, DWORD* type, void* data, DWORD* size) override
    {
        ++queries;
        if (duringQuery)
            duringQuery();
        LONG result = ERROR_SUCCESS;
        if (!queryResults.empty()) {
            result = queryResults.front();
            queryResults.pop_front();
        }
        return result != ERROR_SUCCESS ? result : m_store.queryValue(key, name, type, data, size);
    }
    LONG setValue(HKEY key, const CString& name, DWORD type,
                  const std::vector<std::uint8_t>& data) override
    {
        return m_store.setValue(key, name, type, data);
    }
    LONG closeKey(HKEY key) override
    {
        ++closed;
        const LONG result = m_store.closeKey(key);
        return closeResult != ERROR_SUCCESS ? closeResult : result;
    }

private:
    RegFileStore m_store;
};

} // namespace condtree::test
