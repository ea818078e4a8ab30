// Paints the bodies of the cards into pictures, for people to look at: paint_cards FOLDER. The scale is that of the
// toolkit, QT_SCALE_FACTOR.

#include "studio/cards/ActionChainCard.h"
#include "studio/cards/CardHeader.h"
#include "studio/cards/ChoiceGroups.h"
#include "studio/cards/view/CardScene.h"
#include "ui/InterfaceStyle.h"
#include "ui/Palette.h"
#include "ui/Plates.h"

#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>

namespace tarvin::test {
namespace {

/// As wide as in the picker, on the plate of a selected card.
class Plate : public QWidget
{
public:
    Plate(ParameterCard card, const CardCollaborators& with)
    {
        auto* const column = new QVBoxLayout(this);
        column->setContentsMargins(28, 16, 16, 16);
        column->addWidget(makeCardBody(card, with, nullptr));
        setFixedWidth(268 + 28 + 16);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette::panelBackground.toQColor());
        fillPlate(painter, QRectF(rect()).adjusted(8, 8, -8, -8), 8, palette::mintTeal.at(0.06));
    }
};

class Painter
{
public:
    explicit Painter(QString folder)
        : m_folder(std::move(folder))
    { }

    void paint(const QString& name, CardScene& scene, ParameterCard card,
        const std::function<void(QWidget&)>& prepare = {}) const
    {
        Plate plate(card, scene.with);
        const auto settle = [&] {
            plate.resize(plate.width(), plate.heightForWidth(plate.width()));
            for (int turn = 0; turn < 4; ++turn) {
                QApplication::processEvents();
                scene.settle();
                plate.grab();
            }
            // Everything has come to rest by then.
            QEventLoop rest;
            QTimer::singleShot(700, &rest, &QEventLoop::quit);
            rest.exec();
            plate.resize(plate.width(), plate.heightForWidth(plate.width()));
            QApplication::processEvents();
        };
        plate.show();
        plate.activateWindow();
        settle();
        if (prepare) {
            prepare(plate);
            settle();
        }
        const QString file = u"%1/%2.png"_qs.arg(m_folder, name);
        if (!plate.grab().save(file))
            std::fprintf(stderr, "%s could not be written\n", qPrintable(file));
    }

private:
    QString m_folder;
};

void press(CardScene& scene, KeyCode code, const QString& characters, EventFlags flags = EventFlags::none)
{
    scene.platform.keyRecording().press({.keyCode = code, .flags = flags, .characters = characters});
}

void paintApplications(const Painter& painter)
{
    CardScene scene;
    constexpr std::pair<QStringView, QRgb> applications[] = {{u"Calculator", 0xff8e8e93}, {u"Calendar", 0xffff453a},
        {u"Editor", 0xff0a84ff}, {u"Files", 0xff64d2ff}, {u"A Music Player with a Name that is Long", 0xffff375f},
        {u"Paint", 0xffff9f0a}, {u"Terminal", 0xff30d158}, {u"Writer", 0xffbf5af2}, {u"No Picture", 0}};
    for (const auto& [name, colour] : applications)
        scene.install(name.toString(), u"org.example.%1"_qs.arg(name), colour != 0 ? QColor(colour) : QColor());
    chooseCard(ParameterCard::openApplication, scene.record);
    painter.paint(u"open-application-none"_qs, scene, ParameterCard::openApplication);
    painter.paint(u"open-application-search"_qs, scene, ParameterCard::openApplication,
        [](QWidget& plate) { plate.findChild<QLineEdit*>()->setText(u"mus"_qs); });
    scene.openApplication.setSearchText({});
    scene.openApplication.choose(scene.openApplication.filteredInstalledApps()[6]);
    painter.paint(u"open-application-chosen"_qs, scene, ParameterCard::openApplication);
    scene.openApplication.toggleList();
    painter.paint(u"open-application-change"_qs, scene, ParameterCard::openApplication);
}

void paintRecorder(const Painter& painter)
{
    constexpr auto card = ParameterCard::keyboardShortcut;
    CardScene scene;
    chooseCard(card, scene.record);
    painter.paint(u"recorder-empty"_qs, scene, card);
    const auto recording = [&](auto start) { return [&scene, start](QWidget&) { (scene.recorder.*start)(); }; };
    painter.paint(u"recorder-empty-recording"_qs, scene, card, recording(&ShortcutRecorder::recordOne));
    scene.recorder.stopRecording();
    scene.recorder.recordOne();
    press(scene, 8, u"c"_qs, EventFlags::command);
    painter.paint(u"recorder-one"_qs, scene, card);
    painter.paint(u"recorder-sequence"_qs, scene, card, [&](QWidget&) {
        scene.recorder.recordSequence();
        press(scene, 121, {}, EventFlags::command | EventFlags::option | EventFlags::control | EventFlags::shift);
        press(scene, 123, {}, EventFlags::shift);
        press(scene, 105, {});
    });
    scene.recorder.stopRecording();
    painter.paint(u"recorder-re-recording"_qs, scene, card, [&](QWidget&) { scene.recorder.reRecord(1); });
    scene.recorder.stopRecording();
    scene.recorder.apply(shortcutPresets[4]);
    painter.paint(u"recorder-two"_qs, scene, card);
    painter.paint(u"recorder-tested"_qs, scene, card, [&](QWidget&) { scene.recorder.test(); });
}

void run(const QString& folder)
{
    const Painter painter(folder);
    CardScene scene;
    for (const auto& [card, name] :
        {std::pair(ParameterCard::screenCapture, u"screen-capture"_qs), {ParameterCard::openWebURL, u"open-web-url"_qs},
            {ParameterCard::textSnippet, u"text-snippet"_qs},
            {ParameterCard::clipboardHistory, u"clipboard-history"_qs},
            {ParameterCard::quickAppFlip, u"quick-app-flip"_qs}, {ParameterCard::actionChain, u"action-chain-empty"_qs},
            {ParameterCard::floatingScratchpad, u"floating-scratchpad"_qs},
            {ParameterCard::forceQuit, u"force-quit"_qs}}) {
        chooseCard(card, scene.record);
        painter.paint(name, scene, card);
    }
    for (const NewChainStepRow& row : newChainStepRows)
        appendChainStep(scene.record, row.step, scene.platform.uuids());
    scene.record.change([&](ConfiguredAction& config) {
        config.chainSteps.append({.id = scene.platform.uuids().next(),
            .type = ActionChainStepType::openURL,
            .customURL = u"https://docs.example.org/keyboard/layout/of/the/grid"_qs});
        config.chainSteps.append({.id = scene.platform.uuids().next(),
            .type = ActionChainStepType::keyAction,
            .keyAction = KeyAction::lockScreen});
    });
    painter.paint(u"action-chain"_qs, scene, ParameterCard::actionChain);
    scene.record.change([&](ConfiguredAction& config) { config.textSnippet = u""_qs; });
    painter.paint(u"text-snippet-empty"_qs, scene, ParameterCard::textSnippet);
    paintApplications(painter);
    paintRecorder(painter);
}

} // namespace
} // namespace tarvin::test

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: paint_cards FOLDER\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    tarvin::InterfaceStyle::install();
    tarvin::test::run(QString::fromLocal8Bit(arguments[1]));
    return 0;
}
