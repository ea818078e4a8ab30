#include "studio/settings/view/SettingsSheet.h"

#include "studio/settings/SettingsSheetModel.h"
#include "studio/settings/view/CrossFade.h"
#include "studio/settings/view/KeyboardFlexibilitySection.h"
#include "studio/settings/view/SettingsColours.h"
#include "studio/settings/view/SettingsTabBar.h"
#include "studio/settings/view/SettingsTabButton.h"
#include "studio/settings/view/StartupSection.h"
#include "ui/OutlinedButton.h"
#include "ui/OverlayScrollBar.h"
#include "ui/Plates.h"
#include "ui/TextLabel.h"
#include "ui/TextLine.h"

#include <QPainter>
#include <QScrollArea>

#include <cmath>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr auto tabMotion = Motion::spring(0.28, 0.8);
/// From where a tab's section comes; from the other side for the tab before.
constexpr QPoint sectionWay{28, 0};

// From top to bottom: header, line, tabs, line, sections, line, footer.
constexpr int headerHeight = 70;
constexpr int tabsTop = headerHeight + 1;
constexpr int tabsHeight = 47;
constexpr int bodyTop = tabsTop + tabsHeight + 1;
constexpr int footerHeight = 54;
constexpr int footerTop = SettingsSheet::sheetSize.height() - footerHeight;

constexpr int barInset = 22;
constexpr double tileSize = 38;
constexpr double tileRadius = 10;
constexpr double tileSymbolSize = 17;
constexpr int tileGap = 12;
constexpr double titleGap = 2;
constexpr TextStyle titleStyle{.size = 16, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr TextStyle subtitleStyle{.size = 11, .weight = TextWeight::medium, .face = TextFace::rounded};

constexpr double dotSize = 6;
constexpr int dotGap = 8;
constexpr TextStyle summaryStyle{.size = 11, .weight = TextWeight::medium, .face = TextFace::rounded};

constexpr ButtonLook closeLook{.height = 28,
    .radius = 14,
    .inset = (28 - 12 * symbolBoxPerSize) / 2,
    .symbolSize = 12,
    .spacing = 0,
    .text = {},
    .symbolColour = white.at(0.6),
    .textColour = white.at(0),
    .fill = white.at(0.06),
    .hoveredFill = white.at(0.12),
    .stroke = white.at(0)};
constexpr ButtonLook doneLook{.height = 25,
    .radius = 6.5,
    .inset = 18,
    .symbolSize = 0,
    .spacing = 0,
    .text = {.size = 12, .weight = TextWeight::bold, .face = TextFace::rounded},
    .symbolColour = palette::black,
    .textColour = palette::black,
    .fill = mintTeal,
    .hoveredFill = {0.35, 0.97, 0.82},
    .stroke = white.at(0)};

void placeMiddle(QWidget& widget, int left, int middle)
{
    const QSize size = widget.sizeHint();
    widget.setGeometry(QRect(QPoint(left, middle - size.height() / 2), size));
}

void setLine(TextLabel& label, QStringView text)
{
    label.setText(text.toString());
    label.resize(label.sizeHint());
}

} // namespace

SettingsSheet::SettingsSheet(std::unique_ptr<SettingsSheetModel> model)
    : SheetPanel(rowOf(SettingsTab::keyboardFlexibility).headerTitle.toString(), sheetSize, settingscolours::body)
    , m_model(std::move(model))
    , m_title(new TextLabel({}, titleStyle, white, this))
    , m_subtitle(new TextLabel({}, subtitleStyle, white.at(0.55), this))
{
    addHeader();
    m_tabs = new SettingsTabBar(this);
    m_tabs->setGeometry(0, tabsTop, width(), tabsHeight);
    connect(m_tabs, &SettingsTabBar::tabChosen, this, &SettingsSheet::showTab);
    m_keyboardFlexibility = new KeyboardFlexibilitySection(*m_model);
    m_startup = new StartupSection(*m_model);
    m_areas = {areaFor(m_keyboardFlexibility), areaFor(m_startup)};
    addFooter();
    for (const SettingsTabRow& row : settingsTabRows)
        m_areas[static_cast<std::size_t>(row.tab)]->setVisible(row.tab == m_model->selectedTab());
    connect(m_model.get(), &SettingsSheetModel::changed, this, &SettingsSheet::follow);
    follow();
}

SettingsSheet::~SettingsSheet() = default;

QString SettingsSheet::headerTitle() const
{
    return m_title->text();
}

QString SettingsSheet::headerSubtitle() const
{
    return m_subtitle->text();
}

QString SettingsSheet::summary() const
{
    return m_summary->text();
}

void SettingsSheet::addHeader()
{
    const double height = lineHeight(titleStyle) + titleGap + lineHeight(subtitleStyle);
    const double top = (headerHeight - height) / 2;
    const int left = barInset + static_cast<int>(tileSize) + tileGap;
    m_title->move(left, static_cast<int>(top));
    m_subtitle->move(left, static_cast<int>(std::lround(top + lineHeight(titleStyle) + titleGap)));
    auto* const close = new OutlinedButton(closeLook, this);
    close->setSymbol(Symbol(u"xmark"));
    close->setTip(QStringLiteral("Close"));
    placeMiddle(*close, width() - barInset - close->sizeHint().width(), headerHeight / 2);
    connect(close, &QAbstractButton::clicked, this, [this] { m_model->close(); });
}

QScrollArea* SettingsSheet::areaFor(QWidget* section)
{
    auto* const area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    new OverlayScrollBar(*area, {0, 6, 1, 6});
    area->setWidget(section);
    area->viewport()->setAutoFillBackground(false);
    section->setAutoFillBackground(false); // the area turns it on
    area->setGeometry(0, bodyTop, width(), footerTop - 1 - bodyTop);
    return area;
}

void SettingsSheet::addFooter()
{
    m_summary = new TextLabel({}, summaryStyle, white.at(0.7), this);
    placeMiddle(*m_summary, barInset + static_cast<int>(dotSize) + dotGap, footerTop + footerHeight / 2);
    auto* const done = new OutlinedButton(doneLook, this);
    done->setText(settingsDoneText.toString());
    placeMiddle(*done, width() - barInset - done->sizeHint().width(), footerTop + footerHeight / 2);
    connect(done, &QAbstractButton::clicked, this, [this] { m_model->close(); });
}

void SettingsSheet::showTab(SettingsTab tab)
{
    const SettingsTab before = m_model->selectedTab();
    if (tab == before)
        return;
    QScrollArea& old = *m_areas[static_cast<std::size_t>(before)];
    QScrollArea& next = *m_areas[static_cast<std::size_t>(tab)];
    const bool isMoving = isVisible();
    const QPixmap oldPicture = isMoving ? CrossFade::pictureOf(old) : QPixmap();
    // What has the keyboard goes with its section.
    const bool hadKeyboard = old.isAncestorOf(window()->focusWidget());
    m_model->selectTab(tab);
    if (hadKeyboard)
        m_tabs->button(tab).setFocus(Qt::OtherFocusReason);
    old.hide();
    next.show();
    if (isMoving)
        CrossFade::play(*this, next.geometry(),
            {.before = oldPicture,
                .after = CrossFade::pictureOf(next),
                .way = tab > before ? sectionWay : -sectionWay,
                .ground = settingscolours::body},
            tabMotion);
}

void SettingsSheet::follow()
{
    const SettingsTabRow& row = rowOf(m_model->selectedTab());
    setAccessibleName(row.headerTitle.toString());
    setLine(*m_title, row.headerTitle);
    setLine(*m_subtitle, row.headerSubtitle);
    setLine(*m_summary, m_model->summaryText());
    m_tabs->setSelected(m_model->selectedTab());
    update();
}

Colour SettingsSheet::indicatorColour() const
{
    switch (m_model->indicator()) {
    case StatusIndicator::off:
        return palette::gray.at(0.6);
    case StatusIndicator::active:
        return mintTeal;
    case StatusIndicator::allPortionsOff:
        return palette::orange;
    }
    Q_UNREACHABLE();
}

void SettingsSheet::paintGround(QPainter& painter)
{
    const auto band = [&](int top, int height, const Colour& colour) {
        painter.fillRect(0, top, width(), height, colour.toQColor());
    };
    band(0, headerHeight, settingscolours::bar);
    drawHairline(painter, 0, width(), headerHeight, white.at(0.08));
    band(tabsTop, tabsHeight, settingscolours::tabBar);
    drawHairline(painter, 0, width(), bodyTop - 1, white.at(0.06));
    drawHairline(painter, 0, width(), footerTop - 1, white.at(0.08));
    band(footerTop, footerHeight, settingscolours::bar);

    const QRectF tile(barInset, (headerHeight - tileSize) / 2, tileSize, tileSize);
    fillContinuous(painter, tile, tileRadius, mintTeal.at(0.15));
    drawSymbol(painter, Symbol::namedOrPlaceholder(rowOf(m_model->selectedTab()).headerIcon), tile.center(),
        tileSymbolSize, mintTeal.toQColor());
    const QRectF dot(barInset, footerTop + (footerHeight - dotSize) / 2, dotSize, dotSize);
    fillPlate(painter, dot, dotSize / 2, indicatorColour());
}

} // namespace tarvin
