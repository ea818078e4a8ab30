#include "studio/cards/view/TextCardBody.h"

#include "studio/cards/view/FollowRecord.h"
#include "ui/TextField.h"

#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <limits>

namespace tarvin {

namespace {

constexpr FieldLook fieldLook{.height = 28,
    .radius = 6,
    .inset = 9,
    .symbolSize = 11,
    .text = {.size = 12, .weight = TextWeight::regular, .face = TextFace::rounded}};

} // namespace

TextCardBody::TextCardBody(const TextCard& card, const KeyRecord& record, QWidget* parent)
    : QWidget(parent)
    , m_card(card)
    , m_record(record)
    , m_field(new TextField(card.fieldName.toString(), Symbol::namedOrPlaceholder(card.symbol), fieldLook))
{
    m_field->setPlaceholderText(card.prompt.toString());
    m_field->setMaxLength(std::numeric_limits<int>::max());
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 4, 0, 2);
    column->addWidget(m_field);
    connect(m_field, &QLineEdit::textChanged, this, &TextCardBody::store);
    followRecord(*this, m_record, &TextCardBody::refresh);
}

void TextCardBody::refresh()
{
    const QString text = fieldText(m_card, m_record.config());
    if (m_field->text() == text)
        return;
    const QScopedValueRollback refreshing(m_isRefreshing, true);
    m_field->setText(text);
    m_field->setCursorPosition(0);
}

void TextCardBody::store(const QString& text)
{
    // To show a text is no edit: a missing one stays missing.
    if (!m_isRefreshing)
        setFieldText(m_card, m_record, text);
}

} // namespace tarvin
