// The running program: its life, its switches, the editor, and actions without a key.

#include "app/simulate/InstructionReader.h"
#include "app/simulate/OutputKinds.h"
#include "app/simulate/RecordFields.h"

namespace tarvin::simulate {

namespace {

/// An instruction without fields.
template <typename Kind> Instruction readBare(FieldReader&)
{
    return Kind{};
}

Instruction readExecute(FieldReader& fields)
{
    return ExecuteRecord{readRecord(fields)};
}

Instruction readExecuteAction(FieldReader& fields)
{
    return ExecuteAction{fields.required(u"action", field::action())};
}

Instruction readSwitches(FieldReader& fields)
{
    const FlipSwitches flip{
        .interception = fields.optional(u"interception", field::boolean()),
        .functionKeys = fields.optional(u"functionKeys", field::boolean()),
        .otherKeys = fields.optional(u"otherKeys", field::boolean()),
    };
    if (!flip.interception && !flip.functionKeys && !flip.otherKeys)
        fields.fail(u"expected at least one of the fields \"interception\", \"functionKeys\" or \"otherKeys\""_qs);
    return flip;
}

Instruction readEditProfile(FieldReader& fields)
{
    return EditProfile{fields.required(u"profile", field::text())};
}

Instruction readAddProfile(FieldReader& fields)
{
    return AddProfile{
        .name = fields.required(u"name", field::text()),
        .bundleIdentifier = fields.required(u"bundleIdentifier", field::text()),
        .icon = fields.optionalOr(u"icon", field::text(), u"app.fill"_qs),
    };
}

Instruction readEditKey(FieldReader& fields)
{
    return EditKey{.key = fields.required(u"key", field::fKey()), .record = readRecord(fields)};
}

Instruction readResetKey(FieldReader& fields)
{
    return ResetKey{fields.required(u"key", field::fKey())};
}

Instruction readPasteClip(FieldReader& fields)
{
    constexpr std::int64_t mostRows = 1000;
    return PasteClip{.row = static_cast<qsizetype>(fields.required(u"row", field::integer(1, mostRows))),
        .search = fields.optionalOr(u"search", field::text(), QString())};
}

Instruction readTypeNote(FieldReader& fields)
{
    return TypeNote{fields.required(u"text", field::text())};
}

Instruction readChooseRingItem(FieldReader& fields)
{
    return ChooseRingItem{fields.required(u"title", field::text())};
}

Instruction readClosePanel(FieldReader& fields)
{
    return ClosePanel{fields.required(u"title", field::text())};
}

Instruction readOpenUrls(FieldReader& fields)
{
    return OpenUrls{fields.required(u"urls", field::texts())};
}

Instruction readCloseWindow(FieldReader& fields)
{
    return CloseWindow{fields.required(u"title", field::text())};
}

Instruction readAdvance(FieldReader& fields)
{
    return AdvanceTime{fields.required(u"by", field::milliseconds())};
}

Instruction readOutput(FieldReader& fields)
{
    fields.expectOneOf({u"only"_qs, u"all"_qs});
    static_cast<void>(fields.optional(u"all", field::onlyTrue()));
    const std::optional<QStringList> kinds = fields.optional(u"only", field::texts());
    for (const QString& kind : kinds.value_or(QStringList())) {
        if (!outputKinds().contains(kind)) {
            fields.fail(u"\"only\": there is no effect \"%1\"; expected a list of %2"_qs.arg(
                kind, field::alternatives(outputKinds())));
        }
    }
    return SelectOutput{kinds};
}

constexpr auto rows = std::to_array<InstructionRow>({
    {u"output", Phase::either, readOutput},
    {u"start", Phase::running, readBare<StartProgram>},
    {u"advance", Phase::running, readAdvance},
    {u"end", Phase::running, readBare<EndRun>},
    {u"execute", Phase::running, readExecute},
    {u"executeAction", Phase::running, readExecuteAction},
    {u"switches", Phase::running, readSwitches},
    {u"editProfile", Phase::running, readEditProfile},
    {u"addProfile", Phase::running, readAddProfile},
    {u"editKey", Phase::running, readEditKey},
    {u"resetKey", Phase::running, readResetKey},
    {u"pasteClip", Phase::running, readPasteClip},
    {u"typeNote", Phase::running, readTypeNote},
    {u"chooseRingItem", Phase::running, readChooseRingItem},
    {u"closePanel", Phase::running, readClosePanel},
    {u"reopen", Phase::running, readBare<ReopenProgram>},
    {u"openUrls", Phase::running, readOpenUrls},
    {u"closeWindow", Phase::running, readCloseWindow},
    {u"terminate", Phase::running, readBare<TerminateProgram>},
});

} // namespace

std::span<const InstructionRow> programInstructions()
{
    return rows;
}

} // namespace tarvin::simulate
