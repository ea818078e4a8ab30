// Draws the Studio in its states into files, without a display: the pictures of the documents, and something to look at
// when its look is changed.
//
//   tarvin-studio-pictures FOLDER

#include "actions/usage/ActionUsageTracker.h"
#include "app/StudioEditors.h"
#include "app/StudioMaking.h"
#include "app/core/NoToolPanelWindows.h"
#include "app/core/SharedObjects.h"
#include "interception/EventTapManager.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "studio/StudioBody.h"
#include "studio/StudioWindow.h"
#include "studio/TarvinLogoView.h"
#include "studio/applications/view/AddAppSheet.h"
#include "studio/keyboard/MacBookAirKeyboardView.h"
#include "studio/picker/view/ActionPickerView.h"
#include "studio/settings/view/SettingsSheet.h"
#include "studio/settings/view/SettingsTabBar.h"
#include "studio/settings/view/SettingsTabButton.h"
#include "ui/InterfaceStyle.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Sheet.h"
#include "ui/TextField.h"

#include <QApplication>
#include <QImage>
#include <QLayout>
#include <QPainter>

#include <array>
#include <cstdio>
#include <functional>
#include <utility>

namespace {

using namespace tarvin;

constexpr std::array scales{1, 2};

/// A tile in a colour that depends on the name.
QImage inventedIcon(const QString& icon, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    fillPlate(painter, image.rect(), pixels / 5.0, QColor::fromHsv(static_cast<int>(icon.size()) * 53 % 360, 150, 190));
    fillPlate(
        painter, image.rect().adjusted(pixels / 3, pixels / 3, -pixels / 3, -pixels / 3), pixels / 12.0, Qt::white);
    return image;
}

/// One state of the Studio on a desktop in memory.
class Scene
{
public:
    Scene()
    {
        for (const KeyAction action : {KeyAction::screenCapture, KeyAction::toggleMicMute, KeyAction::keyboardShortcut,
                 KeyAction::snapWindowLeft, KeyAction::textSnippet})
            m_objects.actionUsageTracker().recordUsage(action);
        m_platform.powerSources().setSources(std::vector<PowerSource>{{.currentCapacity = 76, .isCharging = false}});
    }

    KeyProfile& profile() { return m_objects.keyProfile(); }
    simulated::SimulatedPlatform& platform() { return m_platform; }

    void customise(std::initializer_list<std::pair<FKey, KeyAction>> keys)
    {
        for (const auto& [key, action] : keys)
            profile().setAction(action, key);
    }

    /// @param prepare the last touch, when the window is there
    void draw(const QString& file, const std::function<void(Scene&, StudioWindow&)>& prepare = {},
        const QSize& size = MainContentView::idealSize)
    {
        m_objects.eventTapManager().start();
        const std::unique_ptr<StudioWindow> made = makeStudioWindow(m_objects, m_editors.surfaces(), [] {});
        StudioWindow& window = *made;
        window.resize(size);
        // Before the window is shown nothing moves, so what is drawn is at rest.
        if (prepare)
            prepare(*this, window);
        window.ensurePolished();
        window.layout()->activate();
        for (const int scale : scales) {
            QImage image(window.size() * scale, QImage::Format_RGB32);
            image.setDevicePixelRatio(scale);
            window.render(&image);
            image.save(QStringLiteral("%1-%2x.png").arg(file).arg(scale));
        }
    }

    void showSettings(StudioWindow& window, SettingsTab tab)
    {
        m_editors.surfaces().showSettings(window);
        dynamic_cast<SettingsSheet&>(Sheet::over(window)->panel()).tabs().button(tab).click();
    }
    /// @param typed in the search field
    void showAddApplication(StudioWindow& window, const QString& typed)
    {
        m_editors.surfaces().showAddApplication(window);
        dynamic_cast<AddAppSheet&>(Sheet::over(window)->panel()).searchField().setText(typed);
        m_platform.scheduler().runPosted(); // what is installed
        static_cast<void>(window.grab());
        m_platform.scheduler().runPosted(); // the icons that are seen
    }

    void notice(const QString& text) { m_objects.eventTapManager().recordTriggerDirectly(text); }

private:
    simulated::SimulatedPlatform m_platform;
    NoToolPanelWindows m_panels;
    SharedObjects m_objects{m_platform.ports(), m_panels};
    StudioEditors m_editors{m_platform.ports(), m_objects, inventedIcon};
};

/// The window as it comes to rest with a key selected and perhaps a search typed.
void edit(StudioWindow& window, FKey key, const QString& search = {})
{
    window.content().body().keyboard().setSelectedKey(key);
    if (search.isEmpty())
        return;
    auto& picker = dynamic_cast<ActionPickerView&>(*window.content().actionPicker());
    picker.searchField().setText(search);
}

constexpr std::initializer_list<std::pair<FKey, KeyAction>> half = {{FKey::f1, KeyAction::screenCapture},
    {FKey::f5, KeyAction::clipboardHistory}, {FKey::f8, KeyAction::showActionsRing},
    {FKey::f12, KeyAction::keyboardShortcut}, {FKey::capsLock, KeyAction::actionChain},
    {FKey::rightCommand, KeyAction::lockScreen}};

void drawPicker(const QString& folder)
{
    constexpr QSize large{1600, 880};
    Scene selected;
    selected.customise(half);
    selected.draw(
        folder + QStringLiteral("-selected"), [](Scene&, StudioWindow& window) { edit(window, FKey::f5); }, large);
    selected.draw(folder + QStringLiteral("-search"),
        [](Scene&, StudioWindow& window) { edit(window, FKey::f10, QStringLiteral("mute")); });
    selected.draw(folder + QStringLiteral("-search-without-results"),
        [](Scene&, StudioWindow& window) { edit(window, FKey::f10, QStringLiteral("teleportation")); });
    selected.draw(folder + QStringLiteral("-card"), [](Scene&, StudioWindow& window) { edit(window, FKey::f1); });
    selected.profile().setFunctionKeysEnabled(false);
    selected.draw(
        folder + QStringLiteral("-selected-paused"), [](Scene&, StudioWindow& window) { edit(window, FKey::f5); });
}

constexpr std::initializer_list<std::pair<FKey, KeyAction>> dozen = {{FKey::f1, KeyAction::screenCapture},
    {FKey::f2, KeyAction::snapWindowLeft}, {FKey::f3, KeyAction::snapWindowRight},
    {FKey::f5, KeyAction::clipboardHistory}, {FKey::f6, KeyAction::toggleMicMute},
    {FKey::f8, KeyAction::showActionsRing}, {FKey::f9, KeyAction::floatingScratchpad},
    {FKey::f12, KeyAction::openWebURL}, {FKey::capsLock, KeyAction::actionChain},
    {FKey::fnGlobe, KeyAction::aiAssistant}, {FKey::rightCommand, KeyAction::lockScreen},
    {FKey::rightOption, KeyAction::quickAppFlip}};

void drawLogo(const QString& file)
{
    QImage image(1040, 420, QImage::Format_RGB32);
    image.setDevicePixelRatio(1);
    image.fill(palette::windowBackground.toQColor());
    QPainter painter(&image);
    double x = 90;
    for (const LogoGlow glow : {LogoGlow::shining, LogoGlow::none}) {
        for (const double size : {16.0, 32.0, 64.0, 200.0}) {
            paintTarvinLogo(painter, {x, 300 - size, size, size}, glow);
            x += size + 40;
        }
    }
    painter.end();
    image.save(file + QStringLiteral(".png"));
}

void drawSheets(const QString& folder)
{
    Scene settings;
    settings.customise(dozen);
    settings.profile().setOtherKeysEnabled(false);
    settings.draw(folder + QStringLiteral("-settings-keyboard"),
        [](Scene& scene, StudioWindow& window) { scene.showSettings(window, SettingsTab::keyboardFlexibility); });
    Scene startup;
    startup.draw(folder + QStringLiteral("-settings-startup"),
        [](Scene& scene, StudioWindow& window) { scene.showSettings(window, SettingsTab::backgroundAndStartup); });
    Scene masterOff;
    masterOff.customise(dozen);
    masterOff.profile().setInterceptionEnabled(false);
    masterOff.draw(folder + QStringLiteral("-settings-off"),
        [](Scene& scene, StudioWindow& window) { scene.showSettings(window, SettingsTab::keyboardFlexibility); });
    for (const auto& [name, typed] : {std::pair{QStringLiteral("-add-application"), QString()},
             std::pair{QStringLiteral("-add-application-search"), QStringLiteral("ca")},
             std::pair{QStringLiteral("-add-application-nothing"), QStringLiteral("no such thing")}}) {
        Scene scene;
        for (const QString& application :
            {QStringLiteral("Books"), QStringLiteral("Calculator"), QStringLiteral("Calendar"), QStringLiteral("Clock"),
                QStringLiteral("Contacts"), QStringLiteral("Mail"), QStringLiteral("Maps"), QStringLiteral("Messages"),
                QStringLiteral("Photographs"), QStringLiteral("System Settings")})
            scene.platform().applicationFolders().install(ApplicationFolder::applications,
                {.path = QStringLiteral("/Applications/%1.app").arg(application),
                    .bundleIdentifier = QStringLiteral("com.example.") + application.toLower().remove(u' '),
                    .icon = application});
        scene.draw(
            folder + name, [&typed](Scene& drawn, StudioWindow& window) { drawn.showAddApplication(window, typed); });
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: tarvin-studio-pictures FOLDER\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    InterfaceStyle::install();
    const QString folder = QString::fromLocal8Bit(arguments[1]) + QStringLiteral("/studio");

    Scene().draw(folder + QStringLiteral("-empty"));
    Scene customised;
    customised.customise(dozen);
    customised.draw(folder + QStringLiteral("-customised"),
        [](Scene& scene, StudioWindow&) { scene.notice(QStringLiteral("F5 ➔ Clipboard History")); });
    Scene paused;
    paused.customise(dozen);
    paused.profile().setFunctionKeysEnabled(false);
    paused.draw(folder + QStringLiteral("-paused"));
    drawPicker(folder);
    Scene waiting;
    waiting.customise({{FKey::f5, KeyAction::clipboardHistory}, {FKey::capsLock, KeyAction::actionChain}});
    waiting.platform().permission().setTrusted(false);
    waiting.draw(folder + QStringLiteral("-without-permission"));
    drawSheets(folder);
    drawLogo(folder + QStringLiteral("-logo"));
    return 0;
}
