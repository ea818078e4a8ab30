#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QStringView>

namespace tarvin::simulated {

/// One JSON object on one line, its fields in the order in which they were added, which Qt's own objects do not keep.
class JsonLine
{
public:
    JsonLine& add(QStringView name, const QJsonValue& value);
    JsonLine& add(QStringView name, const QString& text) { return add(name, QJsonValue(text)); }
    JsonLine& add(QStringView name, QStringView text) { return add(name, QJsonValue(text.toString())); }
    /// Without a line end.
    [[nodiscard]] QByteArray text() const { return '{' + m_fields + '}'; }

private:
    QByteArray m_fields;
};

} // namespace tarvin::simulated
