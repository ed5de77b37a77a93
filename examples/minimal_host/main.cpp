#include <condtree/control/CondTreeCtrl.h>
#include <condtree/storedprocs/SpConnect.h>

#include <QApplication>

#include <cstdio>
#include <vector>

// condtree-minimal-host [DATABASE]: shows a condition and prints it when the window is closed.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const auto url = condtree::SpSqliteUrl(QApplication::arguments().value(1));
    auto* const manager = url.isEmpty() ? nullptr : condtree::SpConnect(url, QString(), nullptr);

    condtree::CondTreeCtrl control;
    control.mvInitialize(manager, 120, {}, {}); // A null manager is no reference data.
    if (manager != nullptr)
        manager->Release();                   // The control holds a reference of its own.
    std::vector<condtree::TransCond> records; // Yours, from wherever you keep them.
    control.mvLoad(records);
    control.show();
    const int result = QApplication::exec();
    records.clear();
    control.mvSave(records);

    for (const auto& record : records)
        std::printf("%d %s %d %s\n", record.lRowKind, qUtf8Printable(record.oName.str()),
                    record.lOperator, qUtf8Printable(record.oValue.str()));
    return result;
}
