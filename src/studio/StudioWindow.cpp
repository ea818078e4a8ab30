#include "studio/StudioWindow.h"

#include "studio/TarvinLogoView.h"
#include "ui/Palette.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QVBoxLayout>

namespace tarvin {

namespace {

QIcon logoIcon()
{
    QIcon icon;
    for (const int side : {16, 32, 64, 128}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintTarvinLogo(painter, pixmap.rect(), LogoGlow::none);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

StudioWindow::StudioWindow(const StudioCollaborators& collaborators, StudioSurfaces surfaces)
    : m_content(new MainContentView(collaborators, std::move(surfaces)))
{
    setWindowTitle(windowTitleText.toString());
    setWindowIcon(logoIcon());
    // What shows for a moment while the window grows.
    QPalette colours = QWidget::palette();
    colours.setColor(QPalette::Window, tarvin::palette::windowBackground);
    setPalette(colours);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_content);
    // No control is marked before the user reaches for one.
    m_content->setFocus();
    resize(MainContentView::idealSize);
}

} // namespace tarvin
