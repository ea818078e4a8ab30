#include "app/StudioViews.h"

#include "platform/ports/ApplicationFolders.h"
#include "studio/applications/view/ApplicationPictures.h"
#include "studio/cards/view/CardBody.h"
#include "studio/picker/view/ActionPickerView.h"

#include <utility>

namespace tarvin {

namespace {

struct OwnedEditing
{
    std::unique_ptr<KeyEditing> editing;
};

/// A picker and what it edits with. Of its two halves the view goes first.
class EditingPane final : private OwnedEditing, public ActionPickerView
{
public:
    EditingPane(std::unique_ptr<KeyEditing> keyEditing, StudioSurfaces::Close close, UuidGenerator& uuids,
        ApplicationIcons& icons)
        : OwnedEditing{std::move(keyEditing)}
        , ActionPickerView(editing->picker, std::move(close), bodiesOf(*editing, uuids, icons))
    { }

private:
    static MakeCardBody bodiesOf(KeyEditing& editing, UuidGenerator& uuids, ApplicationIcons& icons)
    {
        const CardCollaborators with{.record = editing.picker.record(),
            .openApplication = editing.openApplication,
            .recorder = editing.recorder,
            .uuids = uuids,
            .icons = icons};
        return [with](ParameterCard card, QWidget* parent) { return makeCardBody(card, with, parent); };
    }
};

} // namespace

StudioViews::StudioViews(const Platform& platform, SharedObjects& objects)
    : m_platform(platform)
    , m_editing(platform, objects)
    , m_icons(platform.scheduler, picturesOf(platform.applicationFolders))
{ }

StudioViews::~StudioViews()
{
    for (const QPointer<QWidget>& view : m_open)
        delete view;
}

StudioSurfaces StudioViews::surfaces()
{
    return {.makeActionPicker = [this](FKey key,
                                    StudioSurfaces::Close close) { return makeActionPicker(key, std::move(close)); },
        .showSettings = {},
        .showAddApplication = {}};
}

QWidget* StudioViews::makeActionPicker(FKey key, StudioSurfaces::Close close)
{
    auto* const pane = new EditingPane(m_editing.editKey(key), std::move(close), m_platform.uuids, m_icons);
    std::erase_if(m_open, [](const QPointer<QWidget>& view) { return view.isNull(); });
    m_open.emplace_back(pane);
    return pane;
}

} // namespace tarvin
