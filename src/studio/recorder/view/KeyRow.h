#pragma once

#include "model/CustomShortcut.h"

#include <QWidget>

namespace tarvin {

class OutlinedButton;

/// One recorded key with what can be done to it. While it is recorded anew, it says so in red.
class KeyRow : public QWidget
{
    Q_OBJECT

public:
    enum class State : std::uint8_t { recorded, recordingAnew };

    explicit KeyRow(qsizetype index, QWidget* parent = nullptr);

    void show(const CustomShortcut& shortcut, State state);
    using QWidget::show;

Q_SIGNALS:
    void reRecordWanted();
    void removeWanted();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    qsizetype m_index;
    CustomShortcut m_shortcut;
    State m_state = State::recorded;
    OutlinedButton* m_reRecord;
    OutlinedButton* m_remove;
};

} // namespace tarvin
