#include "tools/clipboard/view/ClipboardHistoryView.h"

#include "tools/clipboard/ClipboardHistoryHUDManager.h"
#include "tools/clipboard/ClipboardHistoryManager.h"
#include "tools/clipboard/view/ClipList.h"
#include "ui/TextField.h"
#include "ui/TextLabel.h"

#include <QPainter>
#include <QTimer>

#include <chrono>

namespace tarvin {

namespace {

constexpr QSize plateSize(static_cast<int>(ClipboardHistoryHUDManager::traits.size.width),
    static_cast<int>(ClipboardHistoryHUDManager::traits.size.height));

constexpr TextStyle hintText{.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr TextStyle footerText{.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr Colour clear = palette::white.at(0);
constexpr Colour footerFill{0.08, 0.08, 0.10};

constexpr int searchTop = ToolPlate::headerHeight + ToolPlate::hairlineHeight;
constexpr int searchHeight = 32;
constexpr int bodyTop = searchTop + searchHeight + ToolPlate::hairlineHeight;
constexpr int footerTop = plateSize.height() - ToolPlate::footerHeight;
constexpr int bodyHeight = footerTop - ToolPlate::hairlineHeight - bodyTop;

/// The panel has come up by then.
constexpr std::chrono::milliseconds preparationDelay{250};

constexpr FieldLook searchLook{.height = searchHeight,
    .radius = 0,
    .inset = 14,
    .symbolSize = 12,
    .text = {.size = 12, .weight = TextWeight::regular, .face = TextFace::rounded},
    .fill = clear,
    .stroke = clear,
    .focusedStroke = clear,
    .symbolGap = 8,
    .textColour = palette::white,
    .symbolColour = palette::white.at(0.4),
    .filledSymbolColour = palette::white.at(0.4),
    .clearSymbolSize = 12,
    .clearSymbolColour = palette::white.at(0.4)};

} // namespace

/// What stands in the place of the rows where there are none.
class ClipboardHistoryView::EmptyState : public QWidget
{
public:
    explicit EmptyState(QWidget* parent)
        : QWidget(parent)
        , m_title(new TextLabel(
              {}, {.size = 12, .weight = TextWeight::medium, .face = TextFace::rounded}, palette::white.at(0.5), this))
        , m_hint(new TextLabel(ClipboardHistoryView::tr("Copy text or code anywhere on your Mac"),
              {.size = 10, .weight = TextWeight::regular, .face = TextFace::rounded}, palette::white.at(0.3), this))
    {
        setGeometry(0, bodyTop, plateSize.width(), bodyHeight);
    }

    void setTitle(const QString& title)
    {
        m_title->setText(title);
        const double top = symbolTop() + symbolHeight + spacing;
        centre(*m_title, top);
        centre(*m_hint, top + m_title->height() + spacing);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        drawSymbol(painter, Symbol(u"doc.text.magnifyingglass"), {width() / 2.0, symbolTop() + symbolHeight / 2},
            symbolSize, palette::white.at(0.25));
    }

private:
    static constexpr double symbolSize = 28;
    static constexpr double symbolHeight = symbolSize * symbolBoxPerSize;
    static constexpr double spacing = 8;

    [[nodiscard]] double symbolTop() const
    {
        const double block = symbolHeight + m_title->sizeHint().height() + m_hint->sizeHint().height() + 2 * spacing;
        return (height() - block) / 2;
    }
    void centre(TextLabel& label, double top) const
    {
        label.adjustSize();
        label.move((width() - label.width()) / 2, static_cast<int>(top));
    }

    TextLabel* m_title;
    TextLabel* m_hint;
};

ClipboardHistoryView::ClipboardHistoryView(ClipboardHistoryManager& manager,
    std::function<void(const ClipboardItem&)> onPaste, std::function<bool()> hasCompositor)
    : ToolPlate(plateSize, {.symbol = Symbol(u"doc.on.clipboard.fill"), .title = tr("Clipboard History")},
        std::move(hasCompositor))
    , m_manager(manager)
    , m_search(
          new TextField(tr("Search copied text, code, URLs..."), Symbol(u"magnifyingglass"), searchLook, &content()))
    , m_list(new ClipList(&content()))
    , m_empty(new EmptyState(&content()))
    , m_count(new TextLabel({}, footerText, palette::white.at(0.5), &content()))
    , m_clear(new OutlinedButton(plainTextLook(footerText, palette::red.at(0.8), 4, 20), &content()))
{
    addToHeader(*new TextLabel(tr("Press 1–9 or click to paste"), hintText, palette::white.at(0.45), &content()));
    addBand({.top = searchTop, .height = searchHeight, .fill = palette::white.at(0.04)});
    addBand({.top = searchTop + searchHeight, .height = hairlineHeight, .fill = palette::white.at(0.06)});
    addBand({.top = footerTop - hairlineHeight, .height = hairlineHeight, .fill = palette::white.at(0.08)});
    addBand({.top = footerTop, .height = footerHeight, .fill = footerFill});

    m_search->setGeometry(0, searchTop, plateSize.width(), searchHeight);
    m_list->setGeometry(0, bodyTop, plateSize.width(), bodyHeight);
    m_clear->setText(tr("Clear History"));
    m_clear->adjustSize();
    m_clear->move(
        plateSize.width() - sideInset + 4 - m_clear->width(), footerTop + (footerHeight - m_clear->height()) / 2);

    connect(m_search, &QLineEdit::textChanged, this, &ClipboardHistoryView::showItems);
    connect(&m_manager, &ClipboardHistoryManager::itemsChanged, this, &ClipboardHistoryView::showItems);
    connect(m_list, &ClipList::pasteWanted, this, [onPaste = std::move(onPaste)](const ClipboardItem& item) {
        onPaste(ClipboardItem(item)); // the list may change under the reference
    });
    connect(m_list, &ClipList::pinWanted, this,
        [this](const ClipboardItem& item) { m_manager.togglePin(ClipboardItem(item)); });
    connect(m_list, &ClipList::deleteWanted, this,
        [this](const ClipboardItem& item) { m_manager.deleteClip(ClipboardItem(item)); });
    connect(m_clear, &QAbstractButton::clicked, this, [this] { m_manager.clearAllClips(); });
    connect(this, &ToolPlate::appeared, this, [this] {
        m_search->setFocus();
        // Ahead of the first keystroke, but not of the first picture.
        QTimer::singleShot(preparationDelay, this, [this] { m_clipSearch.prepare(m_manager.items()); });
    });
    showItems();
}

QString ClipboardHistoryView::searchText() const
{
    return m_search->text();
}

void ClipboardHistoryView::showItems()
{
    const QList<ClipboardItem> found = m_clipSearch.filteredItems(m_manager.items(), searchText());
    m_list->setVisible(!found.isEmpty());
    m_empty->setVisible(found.isEmpty());
    m_empty->setTitle(searchText().isEmpty() ? tr("No items in clipboard history yet") : tr("No matching clips found"));
    m_list->show(found);
    m_list->setVisible(!found.isEmpty());
    m_count->setText(tr("%1 clips saved").arg(found.size()));
    m_count->adjustSize();
    m_count->move(sideInset, footerTop + (footerHeight - m_count->height()) / 2);
    m_clear->setVisible(!m_manager.items().isEmpty());
}

} // namespace tarvin
