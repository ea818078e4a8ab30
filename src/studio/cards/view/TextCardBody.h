#pragma once

#include "studio/cards/KeyRecord.h"
#include "studio/cards/TextCards.h"

#include <QWidget>

namespace tarvin {

class TextField;

/// The body of a card with one text, stored at each change of it.
class TextCardBody : public QWidget
{
    Q_OBJECT

public:
    TextCardBody(const TextCard& card, const KeyRecord& record, QWidget* parent);

private:
    void refresh();
    void store(const QString& text);

    const TextCard& m_card; ///< a row of the table
    KeyRecord m_record;
    TextField* m_field;
    bool m_isRefreshing = false;
};

} // namespace tarvin
