#pragma once

#include "studio/picker/PickerSection.h"
#include "studio/picker/view/EntryStack.h"
#include "ui/AnimatedValue.h"

#include <QWidget>

namespace tarvin {

class PickerSectionHeader;
class UsageFilterSwitch;

/// A section of the list: its heading, and the rows that fold away under it. The first one has the switch between what
/// is used frequently and what recently.
class PickerSectionView : public QWidget
{
    Q_OBJECT

public:
    PickerSectionView(
        PickerSection section, ActionPickerModel& model, const MakeCardBody& makeCardBody, QWidget* parent);

    /// Brings everything shown in line with the model; while it is in sight changes move there.
    void follow();
    [[nodiscard]] PickerSection section() const { return m_section; }
    [[nodiscard]] PickerSectionHeader& header() const { return *m_header; }
    [[nodiscard]] EntryStack& stack() const { return *m_stack; }
    /// Null but in the first section.
    [[nodiscard]] UsageFilterSwitch* filterSwitch() const { return m_switch; }
    /// At this moment of the movement.
    [[nodiscard]] int currentHeight() const;
    void layOut();

Q_SIGNALS:
    void heightChanged();

private:
    void fadeRowsIn();
    [[nodiscard]] int headerHeight() const;

    PickerSection m_section;
    ActionPickerModel& m_model;
    PickerSectionHeader* m_header;
    UsageFilterSwitch* m_switch = nullptr;
    QWidget* m_body; ///< cuts off what is folded away
    EntryStack* m_stack;
    AnimatedValue m_share; ///< how much of the rows has unfolded, from 0 to 1
    AnimatedValue m_opacity; ///< of the rows, after others took their place
    ActionUsageFilter m_filter;
};

} // namespace tarvin
