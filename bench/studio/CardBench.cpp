// What one keystroke in the search of the card that opens applications costs, the list painted and all.

#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "studio/applications/view/ApplicationIcons.h"
#include "studio/cards/KeyboardShortcutCard.h"
#include "studio/cards/OpenApplicationCard.h"
#include "studio/cards/view/CardBody.h"
#include "ui/InterfaceStyle.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>

#include <benchmark/benchmark.h>

#include <array>

namespace {

using namespace tarvin;

/// The card for F5 on a desktop in memory with so many applications, shown as wide as in the picker.
class Card
{
public:
    explicit Card(int applications)
    {
        constexpr std::array words{u"Visual", u"Studio", u"Terminal", u"Café", u"Music", u"Editor", u"System Monitor"};
        for (int number = 0; number < applications; ++number) {
            const auto first = static_cast<std::size_t>(number) % words.size();
            const auto second = static_cast<std::size_t>(number) / words.size() % words.size();
            m_platform.applicationFolders().install(ApplicationFolder::applications,
                {.path = QStringLiteral("/usr/share/applications/%1.desktop").arg(number),
                    .bundleIdentifier =
                        QStringLiteral("org.example.vendor%1.Application%2").arg(number % 50).arg(number),
                    .displayName = QStringLiteral("%1 %2 %3").arg(words[first], words[second]).arg(number),
                    .icon = QStringLiteral("icon%1").arg(number)});
        }
        m_body->resize(268, 320);
        m_body->show();
        settle();
        m_field = m_body->findChild<QLineEdit*>();
    }

    void type(const QString& text)
    {
        m_field->setText(text);
        settle();
    }

private:
    /// Until everything is laid out and painted.
    void settle()
    {
        QCoreApplication::processEvents();
        m_platform.scheduler().runPosted();
        QCoreApplication::processEvents();
    }

    simulated::SimulatedPlatform m_platform;
    KeyProfile m_profile{m_platform.files(), m_platform.preferences(), m_platform.workspace(), m_platform.console(),
        m_platform.uuids(), [](KeyAction) {}};
    KeyRecord m_record{FKey::f5, m_profile};
    OpenApplicationCard m_openApplication{m_record,
        {.folders = m_platform.applicationFolders(),
            .applications = m_platform.applicationControl(),
            .chooser = m_platform.applicationChooser(),
            .scheduler = m_platform.scheduler()}};
    ShortcutRecorder m_recorder{shortcutBinding(m_record),
        {.keyRecording = m_platform.keyRecording(),
            .uuids = m_platform.uuids(),
            .scheduler = m_platform.scheduler(),
            .play = [](const QList<CustomShortcut>&, MultiKeyPlaybackMode) {}}};
    ApplicationIcons m_icons{m_platform.scheduler(), [](const QString&, int pixels) {
                                 QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
                                 image.fill(Qt::darkCyan);
                                 return image;
                             }};
    std::unique_ptr<QWidget> m_body{makeCardBody(ParameterCard::openApplication,
        {.record = m_record,
            .openApplication = m_openApplication,
            .recorder = m_recorder,
            .uuids = m_platform.uuids(),
            .icons = m_icons},
        nullptr)};
    QLineEdit* m_field = nullptr;
};

/// A word typed and taken back, letter by letter; the figure is that of one keystroke.
void keystrokeInApplicationSearch(benchmark::State& state)
{
    Card card(static_cast<int>(state.range(0)));
    const QStringList typed{QStringLiteral("s"), QStringLiteral("st"), QStringLiteral("stu"), QStringLiteral("stud"),
        QStringLiteral("stu"), QStringLiteral("st"), QStringLiteral("s"), QString()};
    qsizetype next = 0;
    for ([[maybe_unused]] auto _ : state)
        card.type(typed[next++ % typed.size()]);
}
BENCHMARK(keystrokeInApplicationSearch)->ArgName("applications")->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    InterfaceStyle::install();
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
