#include "platform/simulated/JsonLine.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace tarvin::simulated {

namespace {

/// Qt writes documents only; a list of one is the nearest, less its brackets.
QByteArray valueText(const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

} // namespace

JsonLine& JsonLine::add(QStringView name, const QJsonValue& value)
{
    if (!m_fields.isEmpty())
        m_fields += ',';
    m_fields += valueText(name.toString()) + ':' + valueText(value);
    return *this;
}

} // namespace tarvin::simulated
