#include "studio/applications/view/ApplicationListView.h"

#include "studio/applications/view/ApplicationIcons.h"
#include "studio/applications/view/ApplicationRows.h"
#include "ui/OverlayScrollBar.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace tarvin {

namespace {

constexpr int wheelStep = 16;

bool isReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Whether a key that came to the list was meant for the text that filters it.
bool isTyping(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Backspace)
        return true;
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !(event.modifiers() & commands) && !event.text().isEmpty() && event.text().front().isPrint();
}

} // namespace

class ApplicationListView::Delegate : public QStyledItemDelegate
{
public:
    explicit Delegate(ApplicationListView& view)
        : QStyledItemDelegate(&view)
        , m_view(view)
    { }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const override
    {
        return {0, m_view.m_look.height + m_view.m_look.spacing};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const ApplicationRowLook& look = m_view.m_look;
        const InstalledApplication& application = m_view.m_rows->applications()[index.row()];
        const bool isHovered = option.state & QStyle::State_MouseOver;
        painter->save();
        paintApplicationRow(*painter, m_view.rowBox(option.rect), look,
            {.name = application.name,
                .detail = application.bundleIdentifier,
                .icon = m_view.m_icons.icon(application.icon, look.iconSize, painter->device()->devicePixelRatioF()),
                .isMarked = isHovered || m_view.isProposed(index),
                .isChosen = m_view.m_rows->isChosen(index.row()),
                .hasFocus = m_view.hasFocus() && index == m_view.currentIndex()});
        painter->restore();
    }

private:
    ApplicationListView& m_view;
};

ApplicationListView::ApplicationListView(
    ApplicationIcons& icons, const ApplicationRowLook& look, const QString& name, QWidget* parent)
    : QListView(parent)
    , m_icons(icons)
    , m_look(look)
    , m_rows(new ApplicationRows(this))
{
    setAccessibleName(name);
    setFrameShape(QFrame::NoFrame);
    setItemDelegate(new Delegate(*this));
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(wheelStep);
    new OverlayScrollBar(*this);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_Hover);
    setModel(m_rows);
    connect(this, &QAbstractItemView::clicked, this, &ApplicationListView::choose);
    connect(&m_icons, &ApplicationIcons::changed, viewport(), qOverload<>(&QWidget::update));
}

void ApplicationListView::setApplications(const QList<InstalledApplication>& applications)
{
    m_rows->setApplications(applications);
    scrollToTop();
}

const QList<InstalledApplication>& ApplicationListView::applications() const
{
    return m_rows->applications();
}

void ApplicationListView::setChosen(const QString& bundleIdentifier)
{
    m_rows->setChosen(bundleIdentifier);
}

void ApplicationListView::setProposing(bool proposing)
{
    m_isProposing = proposing;
    viewport()->update();
}

void ApplicationListView::attachSearchField(QLineEdit& field)
{
    m_field = &field;
    field.installEventFilter(this);
}

int ApplicationListView::fullHeight() const
{
    const int count = m_rows->rowCount();
    const int rows = count == 0 ? 0 : count * (m_look.height + m_look.spacing) - m_look.spacing;
    return m_look.margins.top() + rows + m_look.margins.bottom();
}

QRect ApplicationListView::rowBox(const QRect& item) const
{
    return {m_look.margins.left(), item.top(), width() - m_look.margins.left() - m_look.margins.right(), m_look.height};
}

QModelIndex ApplicationListView::indexAt(const QPoint& point) const
{
    const QModelIndex index = QListView::indexAt(point);
    return index.isValid() && rowBox(visualRect(index)).contains(point) ? index : QModelIndex();
}

bool ApplicationListView::isProposed(const QModelIndex& index) const
{
    return m_isProposing && index.row() == 0 && !hasFocus();
}

void ApplicationListView::choose(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    // A copy: whoever hears of it may fill the list anew.
    const InstalledApplication application = m_rows->applications()[index.row()];
    Q_EMIT chosen(application);
}

bool ApplicationListView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_field && event->type() == QEvent::KeyPress)
        return handleFieldKey(*static_cast<QKeyEvent*>(event));
    return QListView::eventFilter(watched, event);
}

bool ApplicationListView::handleFieldKey(const QKeyEvent& event)
{
    if (m_rows->rowCount() == 0)
        return false;
    if (isReturn(event)) {
        if (m_isProposing)
            choose(m_rows->index(0));
        return m_isProposing;
    }
    if (event.key() != Qt::Key_Down)
        return false;
    // The proposed row is marked already; the key goes on from there.
    const int row = std::min(m_isProposing ? 1 : 0, m_rows->rowCount() - 1);
    setFocus(Qt::OtherFocusReason);
    setCurrentIndex(m_rows->index(row));
    return true;
}

void ApplicationListView::keyPressEvent(QKeyEvent* event)
{
    const bool isOnFirst = currentIndex().row() <= 0;
    if (isReturn(*event) || event->key() == Qt::Key_Space) {
        choose(currentIndex());
    } else if (m_field && event->key() == Qt::Key_Up && isOnFirst) {
        m_field->setFocus(Qt::OtherFocusReason);
    } else if (m_field && isTyping(*event)) {
        m_field->setFocus(Qt::OtherFocusReason);
        m_field->event(event);
    } else if (event->key() == Qt::Key_Escape || isTyping(*event)) {
        event->ignore(); // no selection to clear, no row to jump to
    } else {
        QListView::keyPressEvent(event);
    }
}

void ApplicationListView::updateGeometries()
{
    QListView::updateGeometries();
    QScrollBar* const bar = verticalScrollBar();
    bar->setRange(0, std::max(0, fullHeight() - viewport()->height()));
    bar->setPageStep(viewport()->height());
    bar->setSingleStep(wheelStep);
}

QItemSelectionModel::SelectionFlags ApplicationListView::selectionCommand(
    const QModelIndex& /*index*/, const QEvent* /*event*/) const
{
    return QItemSelectionModel::NoUpdate;
}

void ApplicationListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    if (selected.isEmpty())
        return;
    // Not in the middle of the selection, because the choice may put other rows here.
    const auto chooseAndClear = [this, index = QPersistentModelIndex(selected.indexes().first())] {
        clearSelection();
        choose(index);
    };
    QMetaObject::invokeMethod(this, chooseAndClear, Qt::QueuedConnection);
}

int ApplicationListView::verticalOffset() const
{
    // The margin above the first row scrolls away with it.
    return QListView::verticalOffset() - m_look.margins.top();
}

} // namespace tarvin
