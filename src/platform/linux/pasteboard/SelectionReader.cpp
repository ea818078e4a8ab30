#include "platform/linux/pasteboard/SelectionReader.h"

#include <algorithm>
#include <array>

namespace tarvin::pasteboard {

namespace {

/// Longer lists of forms and hints than this are not meant.
constexpr qsizetype mostBytesOfAnswer = 65536;

/// What the hint of a password manager says of a secret.
constexpr QByteArrayView secretHint = "secret";

/// The forms of text that are understood, the best first.
constexpr std::array textTargets = {SelectionAtom::utf8String, SelectionAtom::plainTextUtf8, SelectionAtom::plainText};

QString textOfUnknownEncoding(const QByteArray& bytes)
{
    return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
}

} // namespace

SelectionReader::SelectionReader(SelectionServer& server, Clock::time_point now)
    : m_server(server)
    , m_window(server.makeWindow())
    , m_begin(now)
    , m_lastSign(now)
{
    ask(Step::targets, SelectionAtom::tarvinTargets, m_server.atom(SelectionAtom::targets));
}

SelectionReader::~SelectionReader()
{
    xcb_destroy_window(m_server.handle(), m_window);
}

void SelectionReader::ask(Step step, SelectionAtom property, xcb_atom_t target)
{
    m_step = step;
    m_asked = target;
    xcb_convert_selection(m_server.handle(), m_window, m_server.atom(SelectionAtom::clipboard), target,
        m_server.atom(property), XCB_CURRENT_TIME);
}

void SelectionReader::askForText()
{
    ask(Step::text, SelectionAtom::tarvinText, m_textTarget);
}

void SelectionReader::answered(const xcb_selection_notify_event_t& answer, Clock::time_point now)
{
    if (answer.requestor != m_window || answer.selection != m_server.atom(SelectionAtom::clipboard)
        || answer.target != m_asked)
        return;
    m_lastSign = now;
    switch (m_step) {
    case Step::targets:
        takeTargets(answer.property == XCB_ATOM_NONE
                ? PropertyValue{}
                : m_server.property(
                    m_window, m_server.atom(SelectionAtom::tarvinTargets), AfterReading::remove, mostBytesOfAnswer));
        return;
    case Step::hint:
        m_isSecret = answer.property != XCB_ATOM_NONE
            && m_server
                   .property(
                       m_window, m_server.atom(SelectionAtom::tarvinHint), AfterReading::remove, mostBytesOfAnswer)
                   .bytes.startsWith(secretHint);
        askForText();
        return;
    case Step::text:
        if (answer.property == XCB_ATOM_NONE)
            end();
        else
            takeText(
                m_server.property(m_window, m_server.atom(SelectionAtom::tarvinText), AfterReading::remove, mostBytes));
        return;
    case Step::increments:
    case Step::ended:
        return;
    }
}

void SelectionReader::takeTargets(const PropertyValue& value)
{
    const std::vector<std::uint32_t> targets = value.numbers();
    const auto isOffered = [&targets](xcb_atom_t target) { return std::ranges::count(targets, target) > 0; };
    if (targets.empty()) {
        // Owners of the old school cannot tell what they have.
        m_textTarget = m_server.atom(SelectionAtom::utf8String);
        askForText();
        return;
    }
    for (const SelectionAtom candidate : textTargets) {
        if (m_textTarget == XCB_ATOM_NONE && isOffered(m_server.atom(candidate)))
            m_textTarget = m_server.atom(candidate);
    }
    if (m_textTarget == XCB_ATOM_NONE && isOffered(XCB_ATOM_STRING))
        m_textTarget = XCB_ATOM_STRING;
    if (m_textTarget == XCB_ATOM_NONE)
        end();
    else if (const xcb_atom_t hint = m_server.atom(SelectionAtom::passwordManagerHint); isOffered(hint))
        ask(Step::hint, SelectionAtom::tarvinHint, hint);
    else
        askForText();
}

void SelectionReader::takeText(const PropertyValue& value)
{
    if (value.type == m_server.atom(SelectionAtom::increments)) {
        // Removing the property, as the reading did, asks for the first piece.
        m_step = Step::increments;
        return;
    }
    if (value.format == 8)
        finish(value.type, value.bytes);
    else
        end();
}

void SelectionReader::propertyChanged(const xcb_property_notify_event_t& change, Clock::time_point now)
{
    if (m_step != Step::increments || change.window != m_window || change.state != XCB_PROPERTY_NEW_VALUE
        || change.atom != m_server.atom(SelectionAtom::tarvinText))
        return;
    m_lastSign = now;
    takePiece();
}

void SelectionReader::takePiece()
{
    const PropertyValue piece = m_server.property(
        m_window, m_server.atom(SelectionAtom::tarvinText), AfterReading::remove, mostBytes - m_pieces.size());
    if (piece.bytes.isEmpty()) {
        finish(m_typeOfPieces, m_pieces);
        return;
    }
    m_typeOfPieces = piece.type;
    m_pieces.append(piece.bytes);
    if (piece.format != 8 || m_pieces.size() >= mostBytes)
        end();
}

void SelectionReader::finish(xcb_atom_t type, const QByteArray& bytes)
{
    end();
    if (type == m_server.atom(SelectionAtom::utf8String) || type == m_server.atom(SelectionAtom::plainTextUtf8))
        m_result = {.text = QString::fromUtf8(bytes), .isSecret = m_isSecret};
    else if (type == XCB_ATOM_STRING)
        m_result = {.text = QString::fromLatin1(bytes), .isSecret = m_isSecret};
    else if (type == m_server.atom(SelectionAtom::plainText))
        m_result = {.text = textOfUnknownEncoding(bytes), .isSecret = m_isSecret};
    else if (type == XCB_ATOM_NONE)
        m_result = {.text = QString(), .isSecret = m_isSecret}; // in no pieces at all
}

Clock::time_point SelectionReader::deadline() const
{
    return std::min(m_lastSign + silence, m_begin + longest);
}

void SelectionReader::timePassed(Clock::time_point now)
{
    if (now >= deadline())
        end();
}

} // namespace tarvin::pasteboard
