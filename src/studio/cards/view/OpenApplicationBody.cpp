#include "studio/cards/view/OpenApplicationBody.h"

#include "studio/applications/view/ApplicationIcons.h"
#include "studio/applications/view/ApplicationListView.h"
#include "studio/cards/OpenApplicationCard.h"
#include "studio/cards/view/FollowRecord.h"
#include "ui/OutlinedButton.h"
#include "ui/SpringColumn.h"
#include "ui/TextBlock.h"
#include "ui/TextField.h"
#include "ui/TextLabel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvin {

namespace {

using palette::white;

constexpr int iconSize = 24;
constexpr double placeholderSize = 18;
constexpr int spacing = 8;
constexpr Motion changeMotion = Motion::spring(0.25, 0.8);
constexpr int gap = 6; // between search field and button
constexpr TextStyle nameText{.size = 12, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr TextStyle hintText{.size = 10, .weight = TextWeight::regular, .face = TextFace::rounded};

constexpr ButtonLook smallLook{.height = 26,
    .radius = 6,
    .inset = 8,
    .symbolSize = 10,
    .spacing = 4,
    .text = {.size = 10.5, .weight = TextWeight::medium, .face = TextFace::rounded},
    .symbolColour = palette::mintTeal,
    .textColour = white.at(0.85)};

constexpr FieldLook searchLook{.height = 26,
    .radius = 6,
    .inset = 8,
    .symbolSize = 10,
    .text = {.size = 11, .weight = TextWeight::regular, .face = TextFace::rounded},
    .symbolGap = 5};

constexpr qsizetype mostRowsShown = 6;
const ApplicationRowLook listLook{.margins = {0, 0, 10, 0},
    .height = 32,
    .spacing = 2,
    .inset = 10,
    .iconSize = 22,
    .iconRadius = 5,
    .iconGap = 8,
    .radius = 6,
    .name = {.size = 12, .weight = TextWeight::medium, .face = TextFace::rounded},
    .nameColour = white.at(0.9),
    .detail = std::nullopt,
    .chosenFill = palette::mintTeal.at(0.12),
    .chosenSign = Symbol(u"checkmark"),
    .signSize = 10};

} // namespace

/// The picture of the chosen application; the sign of any application while it isn't there.
class OpenApplicationBody::IconLabel : public QWidget
{
public:
    IconLabel(const OpenApplicationCard& card, ApplicationIcons& icons)
        : m_card(card)
        , m_icons(icons)
    {
        setFixedSize(iconSize, iconSize);
    }

    /// @param icon as a bundle names it; empty for none
    void setIcon(const QString& icon)
    {
        m_name = icon;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QPointF middle(width() / 2.0, height() / 2.0);
        const QPixmap icon = m_icons.icon(m_name, iconSize, devicePixelRatioF());
        if (icon.isNull()) {
            drawSymbol(painter, Symbol(OpenApplicationCard::placeholderSymbol), middle, placeholderSize,
                white.at(m_card.hasApplication() ? 0.45 : 0.3).toQColor());
            return;
        }
        const QSizeF size = icon.deviceIndependentSize();
        painter.drawPixmap(middle - QPointF(size.width() / 2, size.height() / 2), icon);
    }

private:
    const OpenApplicationCard& m_card;
    ApplicationIcons& m_icons;
    QString m_name;
};

OpenApplicationBody::OpenApplicationBody(
    const KeyRecord& record, OpenApplicationCard& card, ApplicationIcons& icons, QWidget* parent)
    : QWidget(parent)
    , m_record(record)
    , m_card(card)
    , m_column(new SpringColumn(gap, changeMotion, this))
    , m_icon(new IconLabel(card, icons))
    , m_name(new TextLabel({}, nameText, white))
    , m_placeholder(new TextBlock(OpenApplicationCard::placeholderText.toString(), hintText, white.at(0.5)))
    , m_change(new OutlinedButton(smallLook))
    , m_hint(new TextBlock({}, hintText, white.at(0.45)))
    , m_picker(new QWidget)
    , m_search(new TextField(OpenApplicationCard::searchPrompt.toString(), Symbol(u"magnifyingglass"), searchLook))
    , m_list(new ApplicationListView(icons, listLook, QStringLiteral("Installed applications")))
{
    m_name->setElided(true);
    m_change->setText(OpenApplicationCard::changeText.toString());
    connect(m_change, &QAbstractButton::clicked, &m_card, &OpenApplicationCard::toggleList);
    auto* const chosen = new QHBoxLayout;
    chosen->setSpacing(spacing);
    chosen->addWidget(m_icon);
    chosen->addWidget(m_name, 1);
    chosen->addWidget(m_placeholder, 1);
    chosen->addWidget(m_change);

    auto* const browseButton = new OutlinedButton(smallLook);
    browseButton->setSymbol(Symbol(u"folder"));
    browseButton->setText(OpenApplicationCard::browseText.toString());
    connect(browseButton, &QAbstractButton::clicked, this, &OpenApplicationBody::browse);
    m_list->attachSearchField(*m_search);
    m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_search, &QLineEdit::textChanged, &m_card, &OpenApplicationCard::setSearchText);
    connect(m_list, &ApplicationListView::chosen, &m_card, &OpenApplicationCard::choose);
    auto* const searching = new QHBoxLayout;
    searching->setSpacing(gap);
    searching->addWidget(m_search, 1);
    searching->addWidget(browseButton);
    auto* const picker = new QVBoxLayout(m_picker);
    picker->setContentsMargins(0, 0, 0, 0);
    picker->setSpacing(gap);
    picker->addLayout(searching);
    picker->addWidget(m_list);

    m_column->setContentsMargins(0, 4, 0, 2);
    m_column->addLayout(chosen);
    m_column->addWidget(m_hint);
    m_column->addWidget(m_picker);

    connect(&icons, &ApplicationIcons::changed, m_icon, qOverload<>(&QWidget::update));
    connect(&m_card, &OpenApplicationCard::changed, this, [this] {
        refresh();
        refreshList();
    });
    followRecord(*this, m_record, &OpenApplicationBody::refresh);
    refreshList();
}

void OpenApplicationBody::refresh()
{
    const SpringColumn::Change change(*m_column);
    const bool hasApplication = m_card.hasApplication();
    m_icon->setIcon(m_card.resolvedAppIcon());
    m_name->setText(m_card.applicationName());
    m_name->setVisible(hasApplication);
    m_placeholder->setVisible(!hasApplication);
    m_change->setSymbol(Symbol::namedOrPlaceholder(m_card.changeSymbol()));
    m_change->setVisible(hasApplication);
    m_hint->setText(m_card.pressHint());
    m_hint->setVisible(hasApplication);
    m_picker->setVisible(m_card.showsList());
    if (m_search->text() != m_card.searchText())
        m_search->setText(m_card.searchText());
    m_list->setChosen(m_card.chosenBundleIdentifier().value_or(QString()));
}

void OpenApplicationBody::refreshList()
{
    m_list->setApplications(m_card.filteredInstalledApps());
    // Of one height whatever is searched for, so that nothing jumps under the pointer.
    const qsizetype rows = std::min(m_card.installedCount(), mostRowsShown);
    m_list->setFixedHeight(static_cast<int>(rows) * (listLook.height + listLook.spacing));
    m_list->setChosen(m_card.chosenBundleIdentifier().value_or(QString()));
}

void OpenApplicationBody::browse()
{
    if (m_fileDialog || m_card.browse())
        return;
    const ApplicationBrowsing browsing = m_card.browsing();
    m_fileDialog = new QFileDialog(this, OpenApplicationCard::fileDialogTitle.toString(), browsing.startFolder,
        QStringLiteral("*.%1").arg(browsing.suffix));
    m_fileDialog->setAttribute(Qt::WA_DeleteOnClose);
    m_fileDialog->setFileMode(QFileDialog::ExistingFile);
    // What the toolkit makes of a native dialog has no place for the message.
    m_fileDialog->setOption(QFileDialog::DontUseNativeDialog);
    if (auto* const grid = qobject_cast<QGridLayout*>(m_fileDialog->layout()))
        grid->addWidget(new QLabel(m_card.fileDialogMessage()), grid->rowCount(), 0, 1, grid->columnCount());
    connect(m_fileDialog, &QFileDialog::fileSelected, &m_card, &OpenApplicationCard::chooseFile);
    m_fileDialog->open();
}

void OpenApplicationBody::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_card.load();
}

} // namespace tarvin
