#include "CondTreeParts.h"

#include <condtree/control/RealIcons.h>
#include <condtree/control/RealServices.h>
#include <condtree/presentation/CDPIHelper.h>
#include <condtree/refdata/ErrorText.h>

#include <utility>

namespace condtree {

namespace {

bool isComplete(const Services& ports)
{
    return ports.messageBox && ports.string && ports.localTime && ports.tickCount && ports.cursorPos
           && ports.systemMetric && ports.doubleClickTime && ports.bitsPerPixel && ports.startTimer
           && ports.stopTimer && ports.registry && ports.icons && ports.resultTexts;
}

template <class Port>
void fillIn(Port& port, const Port& real)
{
    if (!port)
        port = real;
}

Services completed(Services ports)
{
    if (isComplete(ports))
        return ports;
    const Services real = realServices();
    fillIn(ports.messageBox, real.messageBox);
    fillIn(ports.string, real.string);
    fillIn(ports.localTime, real.localTime);
    fillIn(ports.tickCount, real.tickCount);
    fillIn(ports.cursorPos, real.cursorPos);
    fillIn(ports.systemMetric, real.systemMetric);
    fillIn(ports.doubleClickTime, real.doubleClickTime);
    fillIn(ports.bitsPerPixel, real.bitsPerPixel);
    fillIn(ports.startTimer, real.startTimer);
    fillIn(ports.stopTimer, real.stopTimer);
    fillIn(ports.registry, real.registry);
    if (!ports.icons) // where these settings say
        ports.icons = iconsOf(ports.registry);
    fillIn(ports.resultTexts, real.resultTexts);
    return ports;
}

} // namespace

CondTreeParts::CondTreeParts(QTreeView& view, Services ports)
    : services(completed(std::move(ports)))
    , messageOwner(&view)
    , settings(manager, *services.registry)
    , reference(manager, [this](HRESULT code) { report(code); })
    , model(services.string, images)
    , loader(services.string, settings, reference, model)
    , saver(services.string, settings, reference.variables, model)
    , drawing(services, model, columns, images)
    , tree(model)
    , cells({view, services, manager, settings, reference, images, columns, model, tree,
             [this](HRESULT code, unsigned type) { report(code, type); }})
    , dragging({view, services, model, columns, tree, drawing, cells})
{
}

void CondTreeParts::setUp(SpMgr* newManager, LONG dateStyle, KiroVaultType vaultType,
                          TreeType treeType)
{
    manager.reset(newManager);
    settings.dateStyle = dateStyle;
    settings.vaultType = vaultType;
    settings.treeType = treeType;
    settings.mbInitSettings();
}

QSize CondTreeParts::appendImages()
{
    CDPIHelper::get(); // the first control of the process makes it
    const QSize size(services.systemMetric(SM_CXSMICON), services.systemMetric(SM_CYSMICON));
    images.append(*services.icons, size, services.bitsPerPixel());
    return images.rows() == nullptr ? size : images.rows()->imageSize();
}

POINT CondTreeParts::takeClick()
{
    const std::optional<POINT> click = std::exchange(clickedAt, std::nullopt);
    return click ? *click : services.cursorPos();
}

void CondTreeParts::report(HRESULT code, unsigned type) const
{
    // The text is the host's, who may delete the owner when asked.
    const CString text = ResultCodeText(code, services.string, services.resultTexts.get());
    if (!messageOwner.isNull())
        services.messageBox(messageOwner, text, type);
}

} // namespace condtree
