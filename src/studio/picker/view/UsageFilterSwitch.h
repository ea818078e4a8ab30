#pragma once

#include "actions/usage/ActionUsageFilter.h"

#include <QWidget>

#include <array>

namespace tarvin {

class UsageFilterPill;

/// The two small pills that decide what the first section shows.
class UsageFilterSwitch : public QWidget
{
    Q_OBJECT

public:
    explicit UsageFilterSwitch(QWidget* parent);

    void setFilter(ActionUsageFilter filter);

Q_SIGNALS:
    void filterChosen(tarvin::ActionUsageFilter filter);

private:
    std::array<UsageFilterPill*, allActionUsageFilters.size()> m_pills{};
};

} // namespace tarvin
