#pragma once

#include <QString>
#include <QStringList>

#include <QtGlobal>

namespace condtree::test {

/// Takes everything that is logged while it lives, each entry as "category: text". One at a time.
class LogCapture {
public:
    LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;
    ~LogCapture();

    [[nodiscard]] QStringList taken() const;

private:
    QtMessageHandler m_before;
};

} // namespace condtree::test
