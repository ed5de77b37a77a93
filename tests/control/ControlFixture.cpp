#include "ControlFixture.h"

#include <condtree/presentation/SystemMetrics.h>
#include <condtree/refdata/RegFileStore.h>

namespace condtree::test {

QColor ColouredIcons::colour(int n)
{
    return {20 * n + 10, 255 - 20 * n, 40};
}

IconResult ColouredIcons::answer(const CString& name, int use, int images, IconPixels& pixels)
{
    const QColor plain = colour(static_cast<int>(requests.size()) % 12);
    requests.push_back(name);
    uses.push_back(use);
    pixels.width = 20 * images;
    pixels.height = 24;
    for (int pixel = 0; pixel < pixels.width * pixels.height; ++pixel) {
        for (const int channel : {plain.blue(), plain.green(), plain.red(), 255})
            pixels.bytes.push_back(static_cast<std::uint8_t>(channel));
    }
    return result;
}

IconResult ColouredIcons::loadIcon(const CString& name, int use, IconPixels& icon)
{
    return answer(name, use, 1, icon);
}

IconResult ColouredIcons::loadImage(const CString& name, int use, IconPixels& strip)
{
    return answer(name, use, 9, strip);
}

ControlFixture::ControlFixture()
{
    library->variables = {
        {1, VarText, QStringLiteral("Author")},  {2, VarNumberA, QStringLiteral("Weight")},
        {3, VarNumberB, QStringLiteral("Cost")}, {4, VarBinary, QStringLiteral("Approved")},
        {5, VarDate, QStringLiteral("Due")},     {6, VarText, QStringLiteral("Title")}};
    library->states = {{12, QStringLiteral("Release"), QStringLiteral("Open"), {}, 0},
                       {13, QStringLiteral("Release"), QStringLiteral("Done"), {}, 0}};
    library->users = {{7, QStringLiteral("smith"), QStringLiteral("Ann Smith")},
                      {8, QStringLiteral("jones"), QStringLiteral("Bo Jones")}};
    library->groups = {{3, QStringLiteral("Designers"), {}}, {4, QStringLiteral("Checkers"), {}}};
    control = std::make_unique<OpenCtrl>(nullptr, services());
}

Services ControlFixture::services()
{
    Services ports;
    ports.messageBox = [this](QWidget* owner, const CString& text, unsigned type) {
        messages.push_back(text);
        messageOwners.push_back(owner);
        messageTypes.push_back(type);
        if (duringMessage)
            duringMessage();
        return 0;
    };
    ports.string = [this](LONG id, const char16_t*, const char16_t*, const char16_t* text) {
        if (duringText)
            duringText(id);
        const auto found = translations.find(id);
        return found == translations.end() ? QString::fromUtf16(text) : found->second;
    };
    // A host that ends the control ends these, too: what is held is not used after it was let in.
    ports.systemMetric = [this](int metric) {
        const QSize icon = iconSize;
        if (duringMetric)
            duringMetric(metric);
        return metric == SM_CXSMICON   ? icon.width()
               : metric == SM_CYSMICON ? icon.height()
                                       : realSystemMetric(metric);
    };
    ports.localTime = [this] {
        const SYSTEMTIME time = now ? *now : realServices().localTime();
        const auto onClock = duringClock;
        const auto onTime = duringTime;
        if (onClock)
            onClock();
        if (onTime)
            onTime("localTime");
        return time;
    };
    ports.doubleClickTime = [this] {
        if (duringTime)
            duringTime("doubleClickTime");
        return realServices().doubleClickTime();
    };
    ports.tickCount = [this] {
        if (duringTime)
            duringTime("tickCount");
        return realServices().tickCount();
    };
    ports.cursorPos = [this] { return pointer; };
    ports.bitsPerPixel = [this] { return bitsPerPixel; };
    registry = std::make_shared<RegFileStore>(
        RegFilePaths{folder.filePath(QStringLiteral("user.reg")),
                     folder.filePath(QStringLiteral("machine.reg"))});
    ports.registry = registry;
    ports.icons = icons;
    return ports;
}

void ControlFixture::initialize(KiroVaultType vaultType, TreeType treeType)
{
    control->mvInitialize(library.get(), 120, vaultType, treeType);
}

std::string ControlFixture::loaded(const std::vector<TransCond>& records)
{
    control->mvLoad(records);
    return rows();
}

std::string ControlFixture::rows() const
{
    const VarTreeCtrlNode* top = control->mpoGetNode(TVI_ROOT);
    return top == nullptr ? "no top" : rowsBelow(*top);
}

std::vector<TransCond> ControlFixture::savedRecords(bool alterArguments)
{
    std::vector<TransCond> records;
    control->mvSave(records, nullptr, alterArguments);
    return records;
}

std::string ControlFixture::saved(bool alterArguments)
{
    return toText(savedRecords(alterArguments));
}

VarTreeCtrlNode& ControlFixture::topRow(std::size_t n) const
{
    return *control->mpoGetNode(TVI_ROOT)->mChildren.at(n);
}

} // namespace condtree::test
