#pragma once

#include <QByteArray>

#include <optional>
#include <utility>

namespace tarvin::endtoend {

/// Another value of a variable of the test's own environment, for as long as the object lives.
class EnvironmentChange
{
public:
    /// @param value absent to unset the variable
    EnvironmentChange(QByteArray variable, const std::optional<QByteArray>& value)
        : m_variable(std::move(variable))
    {
        if (qEnvironmentVariableIsSet(m_variable.constData()))
            m_before = qgetenv(m_variable.constData());
        set(value);
    }
    ~EnvironmentChange() { set(m_before); }
    Q_DISABLE_COPY_MOVE(EnvironmentChange)

private:
    void set(const std::optional<QByteArray>& value) const
    {
        if (value)
            qputenv(m_variable.constData(), *value);
        else
            qunsetenv(m_variable.constData());
    }

    const QByteArray m_variable;
    std::optional<QByteArray> m_before;
};

} // namespace tarvin::endtoend
