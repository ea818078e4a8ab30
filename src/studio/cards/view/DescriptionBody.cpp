#include "studio/cards/view/DescriptionBody.h"

#include "ui/Palette.h"
#include "ui/TextBlock.h"

#include <QVBoxLayout>

namespace tarvin {

namespace {

constexpr TextStyle descriptionText{.size = 10, .weight = TextWeight::regular, .face = TextFace::rounded};

} // namespace

DescriptionBody::DescriptionBody(ParameterCard card, QWidget* parent)
    : QWidget(parent)
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 2, 0, 2);
    column->addWidget(new TextBlock(description(card).toString(), descriptionText, palette::white.at(0.42)));
}

} // namespace tarvin
