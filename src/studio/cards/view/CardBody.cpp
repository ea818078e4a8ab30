#include "studio/cards/view/CardBody.h"

#include "studio/cards/view/ActionChainBody.h"
#include "studio/cards/view/ChoiceGroupsBody.h"
#include "studio/cards/view/DescriptionBody.h"
#include "studio/cards/view/OpenApplicationBody.h"
#include "studio/cards/view/TextCardBody.h"
#include "studio/recorder/view/ShortcutRecorderView.h"

namespace tarvin {

namespace {

/// The recorder tells of its own changes only; the record may be written by others too.
QWidget* makeRecorder(const CardCollaborators& with, QWidget* parent)
{
    auto* const view = new ShortcutRecorderView(with.recorder, parent);
    QObject::connect(&with.record.profile(), &KeyProfile::profileMappingsChanged, view, &ShortcutRecorderView::refresh);
    QObject::connect(&with.record.profile(), &KeyProfile::currentProfileChanged, view, &ShortcutRecorderView::refresh);
    return view;
}

} // namespace

QWidget* makeCardBody(ParameterCard card, const CardCollaborators& with, QWidget* parent)
{
    switch (card) {
    case ParameterCard::screenCapture:
    case ParameterCard::forceQuit:
        return new ChoiceGroupsBody(card, with.record, parent);
    case ParameterCard::openApplication:
        return new OpenApplicationBody(with.record, with.openApplication, with.icons, parent);
    case ParameterCard::openWebURL:
    case ParameterCard::textSnippet:
        return new TextCardBody(*textCardOf(card), with.record, parent);
    case ParameterCard::keyboardShortcut:
        return makeRecorder(with, parent);
    case ParameterCard::actionChain:
        return new ActionChainBody(with.record, with.uuids, parent);
    case ParameterCard::clipboardHistory:
    case ParameterCard::quickAppFlip:
    case ParameterCard::floatingScratchpad:
        return new DescriptionBody(card, parent);
    }
    Q_UNREACHABLE();
}

} // namespace tarvin
