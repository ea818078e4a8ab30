// The applications of the session, and what stands on its screens.

#include "app/simulate/InstructionReader.h"

#include <algorithm>
#include <limits>

namespace tarvin::simulate {

namespace {

using simulated::AccessibleWindow;
using simulated::ForceQuitAnswer;
using simulated::WindowPart;

constexpr auto frontAnnouncementNames = std::to_array<simulated::NamedValue<FrontAnnouncement>>({
    {FrontAnnouncement::named, u"named"},
    {FrontAnnouncement::unnamed, u"unnamed"},
    {FrontAnnouncement::never, u"never"},
});

constexpr auto forceQuitAnswerNames = std::to_array<simulated::NamedValue<ForceQuitAnswer>>({
    {ForceQuitAnswer::endsLater, u"endsLater"},
    {ForceQuitAnswer::endsAtOnce, u"endsAtOnce"},
    {ForceQuitAnswer::refuses, u"refuses"},
});

FieldType<std::int64_t> processIdentifier()
{
    return field::integer(1, std::numeric_limits<ProcessIdentifier>::max());
}

/// An application's own identifier and the further ones to which it answers.
QStringList readIdentifiers(FieldReader& fields)
{
    QStringList identifiers;
    if (const std::optional<QString> identifier = fields.optional(u"bundleIdentifier", field::text()))
        identifiers.append(*identifier);
    const QStringList roles = fields.optionalOr(u"roles", field::texts(), QStringList());
    if (!roles.isEmpty() && identifiers.isEmpty())
        fields.fail(u"\"roles\": expected a \"bundleIdentifier\" beside them, which comes first"_qs);
    return identifiers + roles;
}

Instruction readApplication(FieldReader& fields)
{
    RunApplication application;
    if (const std::optional<std::int64_t> process = fields.optional(u"process", processIdentifier()))
        application.process = static_cast<ProcessIdentifier>(*process);
    application.name = fields.required(u"name", field::text());
    application.bundleIdentifiers = readIdentifiers(fields);
    application.policy =
        fields.optionalOr(u"policy", field::oneOf(simulated::activationPolicyNames), ActivationPolicy::regular);
    application.isHidden = fields.optionalOr(u"hidden", field::boolean(), false);
    application.isTerminated = fields.optionalOr(u"terminated", field::boolean(), false);
    application.inFront = fields.optionalOr(u"front", field::boolean(), false);
    application.executable = fields.optional(u"executable", field::textOrNull());
    application.forceQuit = fields.optional(u"forceQuit", field::oneOf(forceQuitAnswerNames));
    return application;
}

Instruction readInstalled(FieldReader& fields)
{
    return InstallApplication{{
        .path = fields.required(u"path", field::text()),
        .name = fields.required(u"name", field::text()),
        .bundleIdentifiers = readIdentifiers(fields),
    }};
}

Instruction readQuit(FieldReader& fields)
{
    return QuitApplication{fields.required(u"application", field::text())};
}

Instruction readFront(FieldReader& fields)
{
    fields.expectOneOf({u"application"_qs, u"none"_qs});
    static_cast<void>(fields.optional(u"none", field::onlyTrue()));
    return BringToFront{
        .application = fields.optional(u"application", field::text()),
        .announcement =
            fields.optionalOr(u"announcement", field::oneOf(frontAnnouncementNames), FrontAnnouncement::named),
    };
}

Size readSize(FieldReader& fields)
{
    return {.width = fields.required(u"width", field::positiveNumber()),
        .height = fields.required(u"height", field::positiveNumber())};
}

Point readPoint(FieldReader& fields)
{
    return {.x = fields.required(u"x", field::number()), .y = fields.required(u"y", field::number())};
}

Rect readRect(FieldReader& fields)
{
    const Point origin = readPoint(fields);
    return {origin, readSize(fields)};
}

OnScreenWindow readWindow(FieldReader& fields)
{
    const std::int64_t owner = fields.required(u"process", processIdentifier());
    const QJsonValue layer = fields.optionalOr(u"layer", field::integerOrNull(), QJsonValue(0));
    return {
        .owner = static_cast<ProcessIdentifier>(owner),
        .layer = layer.isNull() ? std::nullopt : std::optional(layer.toInt()),
        .size = readSize(fields),
    };
}

Instruction readWindows(FieldReader& fields)
{
    return ShowWindows{fields.objects(u"windows", readWindow)};
}

constexpr auto windowPartNames = std::to_array<simulated::NamedValue<WindowPart>>({
    {WindowPart::position, u"position"},
    {WindowPart::size, u"size"},
    {WindowPart::fullScreen, u"fullScreen"},
    {WindowPart::minimized, u"minimized"},
    {WindowPart::fullScreenButton, u"fullScreenButton"},
    {WindowPart::minimizeButton, u"minimizeButton"},
});

std::set<WindowPart> readParts(FieldReader& fields, QStringView name)
{
    std::set<WindowPart> parts;
    for (const QString& text : fields.optionalOr(name, field::texts(), QStringList())) {
        if (const std::optional<WindowPart> part = simulated::valueIn(windowPartNames, text))
            parts.insert(*part);
        else
            fields.fail(u"\"%1\": expected some of %2, found the text \"%3\""_qs.arg(
                name, field::alternatives(simulated::namesIn(windowPartNames)), text));
    }
    return parts;
}

AccessibleWindow readAccessibleWindow(FieldReader& fields)
{
    return {
        .process = static_cast<ProcessIdentifier>(fields.required(u"process", processIdentifier())),
        .title = fields.optionalOr(u"title", field::text(), QString()),
        .hasFocus = fields.optionalOr(u"focus", field::boolean(), true),
        .frame = readRect(fields),
        .isFullScreen = fields.optionalOr(u"fullScreen", field::boolean(), false),
        .isMinimized = fields.optionalOr(u"minimized", field::boolean(), false),
        .unreadable = readParts(fields, u"unreadable"),
        .unwritable = readParts(fields, u"unwritable"),
    };
}

Instruction readAccessibleWindows(FieldReader& fields)
{
    return ShowAccessibleWindows{fields.objects(u"windows", readAccessibleWindow)};
}

Screen readScreen(FieldReader& fields)
{
    Screen screen;
    screen.frame = readRect(fields);
    screen.visibleFrame = screen.frame;
    const std::optional<QJsonValue> inner = fields.optional(u"visible", field::object());
    if (!inner)
        return screen;
    const QJsonObject rect = inner->toObject();
    FieldReader visible(rect, u"\"visible\": "_qs);
    screen.visibleFrame = readRect(visible);
    visible.finish();
    if (visible.error())
        fields.fail(*visible.error());
    return screen;
}

Instruction readScreens(FieldReader& fields)
{
    ArrangeScreens arranged{fields.objects(u"screens", readScreen)};
    const auto last = std::max<std::int64_t>(1, static_cast<std::int64_t>(arranged.screens.size()));
    if (const std::optional<std::int64_t> main = fields.optional(u"main", field::integer(1, last)))
        arranged.main = static_cast<std::size_t>(*main - 1);
    return arranged;
}

Instruction readPointer(FieldReader& fields)
{
    return MovePointer{readPoint(fields)};
}

Instruction readBrightness(FieldReader& fields)
{
    fields.expectOneOf({u"value"_qs, u"unknown"_qs});
    static_cast<void>(fields.optional(u"unknown", field::onlyTrue()));
    return SetBrightness{fields.optional(u"value", field::positiveNumber())};
}

Instruction readAppleMenu(FieldReader& fields)
{
    fields.expectOneOf({u"titles"_qs, u"unreadable"_qs});
    static_cast<void>(fields.optional(u"unreadable", field::onlyTrue()));
    return ArrangeAppleMenu{fields.optional(u"titles", field::texts())};
}

Instruction readClipboard(FieldReader& fields)
{
    fields.expectOneOf({u"text"_qs, u"image"_qs});
    static_cast<void>(fields.optional(u"image", field::onlyTrue()));
    return FillClipboard{
        .text = fields.optional(u"text", field::text()),
        .isSecret = fields.optionalOr(u"secret", field::boolean(), false),
        .answersAfter = fields.optionalOr(u"answersAfter", field::milliseconds(), simulated::VirtualTime::zero()),
    };
}

constexpr auto rows = std::to_array<InstructionRow>({
    {u"application", Phase::either, readApplication},
    {u"installed", Phase::either, readInstalled},
    {u"quit", Phase::either, readQuit},
    {u"front", Phase::either, readFront},
    {u"windows", Phase::either, readWindows},
    {u"accessibleWindows", Phase::either, readAccessibleWindows},
    {u"screens", Phase::either, readScreens},
    {u"pointer", Phase::either, readPointer},
    {u"brightness", Phase::either, readBrightness},
    {u"appleMenu", Phase::either, readAppleMenu},
    {u"clipboard", Phase::either, readClipboard},
});

} // namespace

std::span<const InstructionRow> desktopInstructions()
{
    return rows;
}

} // namespace tarvin::simulate
