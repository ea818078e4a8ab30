#pragma once

#include "studio/cards/KeyRecord.h"

#include <QWidget>

#include <vector>

namespace tarvin {

class SpringColumn;
class UuidGenerator;

/// The body of the card with the steps of a macro: the list of them, and what adds another.
class ActionChainBody : public QWidget
{
    Q_OBJECT

public:
    ActionChainBody(const KeyRecord& record, UuidGenerator& uuids, QWidget* parent);

private:
    class StepRow;

    void refresh();
    [[nodiscard]] StepRow& rowAt(std::size_t index);

    KeyRecord m_record;
    SpringColumn* m_column;
    std::vector<StepRow*> m_rows; ///< those beyond the steps are hidden
};

} // namespace tarvin
