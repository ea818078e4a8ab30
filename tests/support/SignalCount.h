#pragma once

#include <QObject>

namespace tarvin::test {

/// Counts the emissions of one signal from now on.
class SignalCount
{
public:
    template <typename Sender, typename Signal> SignalCount(const Sender& sender, Signal signal)
    {
        QObject::connect(&sender, signal, &m_context, [this] { ++m_count; });
    }
    Q_DISABLE_COPY_MOVE(SignalCount)

    [[nodiscard]] int count() const { return m_count; }

private:
    QObject m_context;
    int m_count = 0;
};

} // namespace tarvin::test
