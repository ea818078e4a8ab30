#pragma once

#include "studio/cards/ParameterCard.h"

#include <QWidget>

namespace tarvin {

/// The body of a card without parameters: what the action does.
class DescriptionBody : public QWidget
{
    Q_OBJECT

public:
    DescriptionBody(ParameterCard card, QWidget* parent);
};

} // namespace tarvin
