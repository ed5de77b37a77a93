// Every public header, so that one which is not installed, or which needs one that is not, fails
// here.
#include <condtree/control/ColumnHeader.h>
#include <condtree/control/CondTreeCtrl.h>
#include <condtree/control/RealServices.h>
#include <condtree/editing/CMonthCalCtrlEx.h>
#include <condtree/editing/ClassNameMessage.h>
#include <condtree/editing/Completion.h>
#include <condtree/editing/FocusEdit.h>
#include <condtree/editing/FocusEditListener.h>
#include <condtree/editing/PickDateDlg.h>
#include <condtree/model/ComboCmd.h>
#include <condtree/model/FocusEditValue.h>
#include <condtree/model/TransCond.h>
#include <condtree/model/TreeType.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/Automation.h>
#include <condtree/platform/ButtonReleasedMessage.h>
#include <condtree/platform/Export.h>
#include <condtree/platform/IconLibrary.h>
#include <condtree/platform/Lst.h>
#include <condtree/platform/RegistryStore.h>
#include <condtree/platform/ResultTexts.h>
#include <condtree/platform/Services.h>
#include <condtree/platform/SpStr.h>
#include <condtree/platform/StoredProcs.h>
#include <condtree/platform/StrMgr.h>
#include <condtree/platform/TextRef.h>
#include <condtree/platform/TimerMessage.h>
#include <condtree/platform/TreeVocabulary.h>
#include <condtree/platform/WfIcons.h>
#include <condtree/platform/WinTypes.h>
#include <condtree/presentation/CDPIHelper.h>
#include <condtree/refdata/ErrorText.h>
#include <condtree/refdata/Registry.h>
#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>
#include <condtree/storedprocs/SpTransitions.h>
#include <condtree/strmgr/Language.h>
#include <condtree/strmgr/LanguageTexts.h>
#include <condtree/strmgr/StringTable.h>
#include <condtree/values/DateStyle.h>
#include <condtree/values/LocaleDate.h>

#include <QApplication>
#include <QFile>

#include <iostream>
#include <string>
#include <vector>

using namespace condtree;

namespace {

std::vector<TransCond> twoRecords()
{
    TransCond group;
    group.lRowKind = RowKindGroup;

    TransCond row;
    row.lRowKind = RowKindInGroup;
    row.lCondType = 2;
    row.oName = SpStr(u"Author");
    row.oValue = SpStr(u"Berg");
    row.lArgType = ArgText;
    row.lOperator = StringContains;
    return {group, row};
}

void print(const TransCond& record)
{
    std::cout << record.lIndex << ' ' << record.lRowKind << ' ' << record.lCondType << " '"
              << record.oName.str().toStdString() << "' " << record.lOperator << " '"
              << record.oValue.str().toStdString() << "'\n";
}

/// A host's own control: what is protected is exported too.
class HostControl final : public CondTreeCtrl {
public:
    using CondTreeCtrl::CondTreeCtrl;
    [[nodiscard]] static ComboCmd defaultOperator(VariableType type)
    {
        return meGetDefaultOp(type);
    }
};

/// What one style reads, as another one writes it.
std::string rewrittenDate()
{
    double date = 0;
    CString text;
    if (ParseDateByStyle(QStringLiteral("Mar 05 2024 02:07 PM"), date, 100))
        static_cast<void>(FormatDateByStyle(text, date, 121));
    return text.toStdString();
}

/// Thrown in a library and caught here: the type is one and the same.
bool catchesResultCodes()
{
    try {
        throw _com_error(E_OUTOFMEMORY);
    } catch (const _com_error& error) {
        return error.Error() == E_OUTOFMEMORY;
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    HRESULT result = S_OK;
    const CString url = SpSqliteUrl(QApplication::arguments().value(1));
    SpMgr* const manager = SpConnect(url, QStringLiteral("admin"), &result);
    std::cout << "connected: " << (manager != nullptr) << ' ' << (SUCCEEDED(result)) << '\n';

    HostControl control;
    control.mvInitialize(manager, 120, KiroVaultType(0), TreeType(0));
    control.resize(600, 200);
    control.show();
    control.mvLoad(twoRecords());

    const ColumnHeader header(control);
    control.mvResizeCol(0, 300, 600);
    std::cout << "columns:";
    for (const CString& title : header.titles())
        std::cout << ' ' << title.toStdString();
    std::cout << ", the first " << control.columnShares()[0] << '\n';

    std::vector<TransCond> saved;
    control.mvSave(saved);
    for (const TransCond& record : saved)
        print(record);

    std::cout << TSS_internal(106, u"OpName", u"Search", u"?").toStdString() << '\n'
              << ResultCodeText(E_OUTOFMEMORY).toStdString() << '\n'
              << "default operator: " << HostControl::defaultOperator(VarDate) << '\n'
              << "date: " << rewrittenDate() << '\n'
              << "result codes: " << catchesResultCodes() << '\n'
              << "German: " << loadLanguage(*QCoreApplication::instance(), QStringLiteral("de_AT"))
              << '\n'
              << TSS_internal(39, u"TS", u"Search", u"Or").toStdString() << '\n';
    for (const QString& folder : languageFolders()) {
        if (QFile::exists(folder + QStringLiteral("/condtree_de.qm")))
            std::cout << "catalogue found\n";
    }
    if (manager != nullptr)
        manager->Release();
    return 0;
}
