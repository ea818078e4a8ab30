#include "studio/applications/view/AddAppSheet.h"

#include "studio/applications/AddAppSheetModel.h"
#include "studio/applications/view/ApplicationListView.h"
#include "studio/applications/view/NoApplicationsView.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/TextLabel.h"

#include <QPainter>

#include <cmath>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr Colour background{0.1, 0.1, 0.12};
constexpr int inset = 20;
constexpr int titleTop = 18;
constexpr TextStyle titleStyle{.size = 16, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr int fieldTop = 50;
constexpr int dividerTop = 94;
constexpr int closeSize = 24;
constexpr ButtonLook closeLook{.height = closeSize,
    .radius = closeSize / 2.0,
    .inset = (closeSize - 17 * symbolBoxPerSize) / 2,
    .symbolSize = 17,
    .spacing = 0,
    .text = {},
    .symbolColour = white.at(0.4),
    .textColour = white.at(0),
    .fill = white.at(0),
    .hoveredFill = white.at(0.1),
    .stroke = white.at(0)};

FieldLook fieldLook()
{
    return {.height = 32,
        .radius = 8,
        .inset = 12,
        .symbolSize = 13,
        .text = {.size = 13, .weight = TextWeight::regular, .face = TextFace::rounded},
        .fill = white.at(0.06),
        .symbolGap = 8,
        .textColour = white,
        .clearSymbolSize = 13};
}

/// What the field's plate says: whether something is searched for, and not whether it has the keyboard.
FieldLook fieldLook(bool isSearching)
{
    FieldLook look = fieldLook();
    look.stroke = look.focusedStroke = isSearching ? mintTeal.at(0.45) : white.at(0.08);
    look.symbolColour = look.filledSymbolColour = isSearching ? mintTeal : white.at(0.4);
    return look;
}

ApplicationRowLook rowLook()
{
    ApplicationRowLook look;
    look.sign = Symbol(u"plus.circle.fill");
    look.margins.setRight(inset - 1); // the list leaves the plate's stroke free
    return look;
}

} // namespace

AddAppSheet::AddAppSheet(std::unique_ptr<AddAppSheetModel> model, ApplicationIcons& icons)
    : SheetPanel(AddAppSheetModel::title.toString(), sheetSize, background)
    , m_model(std::move(model))
    , m_field(new TextField(AddAppSheetModel::searchPrompt.toString(), Symbol(u"magnifyingglass"), fieldLook(), this))
    , m_list(new ApplicationListView(icons, rowLook(), QStringLiteral("Installed applications"), this))
    , m_empty(new NoApplicationsView(this))
{
    auto* const title = new TextLabel(AddAppSheetModel::title.toString(), titleStyle, white, this);
    title->setGeometry(QRect(QPoint(inset, titleTop), title->sizeHint()));
    m_field->setGeometry(inset, fieldTop, width() - 2 * inset, m_field->sizeHint().height());
    const QRect room = QRect(0, dividerTop + 1, width(), height() - dividerTop - 1).adjusted(0, 0, -1, -1);
    m_list->setGeometry(room);
    m_list->attachSearchField(*m_field);
    m_empty->setGeometry(room);
    addCloseButton();
    setFocusProxy(m_field);

    connect(m_field, &QLineEdit::textChanged, this, [this](const QString& text) { m_model->setSearchText(text); });
    connect(m_empty, &NoApplicationsView::clearRequested, this, [this] {
        m_field->clear();
        m_field->setFocus(Qt::OtherFocusReason); // the button that asked for it is gone
    });
    connect(m_list, &ApplicationListView::chosen, this,
        [this](const InstalledApplication& application) { m_model->choose(application); });
    connect(m_model.get(), &AddAppSheetModel::changed, this, &AddAppSheet::follow);
    follow();
}

AddAppSheet::~AddAppSheet() = default;

void AddAppSheet::addCloseButton()
{
    auto* const close = new OutlinedButton(closeLook, this);
    close->setSymbol(Symbol(u"xmark.circle.fill"));
    close->setTip(QStringLiteral("Close"));
    constexpr double symbolWidth = closeLook.symbolSize * symbolBoxPerSize;
    close->setGeometry(static_cast<int>(std::lround(width() - inset - symbolWidth / 2 - closeSize / 2.0)), titleTop - 2,
        closeSize, closeSize);
    connect(close, &QAbstractButton::clicked, this, [this] { m_model->close(); });
}

void AddAppSheet::follow()
{
    const bool isSearching = m_model->isSearching();
    m_field->setLook(fieldLook(isSearching));
    m_list->setApplications(m_model->filteredApps());
    m_list->setProposing(isSearching);
    const bool isEmpty = m_list->applications().isEmpty();
    m_empty->setDetail(m_model->emptyDetail());
    m_empty->setVisible(isEmpty);
    m_list->setVisible(!isEmpty);
}

void AddAppSheet::paintGround(QPainter& painter)
{
    drawHairline(painter, 0, width(), dividerTop, white.at(0.08));
}

} // namespace tarvin
