#include "app/StudioPicker.h"

#include "app/core/StudioEditing.h"
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

StudioPicker::~StudioPicker()
{
    for (const QPointer<QWidget>& pane : m_panes)
        delete pane;
}

void StudioPicker::addTo(StudioSurfaces& surfaces)
{
    surfaces.makeActionPicker = [this](
                                    FKey key, StudioSurfaces::Close close) { return makePane(key, std::move(close)); };
}

QWidget* StudioPicker::makePane(FKey key, StudioSurfaces::Close close)
{
    auto* const pane = new EditingPane(m_editing.editKey(key), std::move(close), m_uuids, m_icons);
    std::erase_if(m_panes, [](const QPointer<QWidget>& each) { return each.isNull(); });
    m_panes.emplace_back(pane);
    return pane;
}

} // namespace tarvin
