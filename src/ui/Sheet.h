#pragma once

#include "ui/AnimatedValue.h"

#include <QPointer>
#include <QWidget>

#include <functional>

namespace tarvin {

class SheetPanel;

/// A panel over a window, which it dims and keeps the pointer and the keyboard from. Comes at once and goes smoothly;
/// the keyboard is then where it was before. Esc takes it away. One at a time in a window, which owns it.
class Sheet : public QWidget
{
    Q_OBJECT

public:
    using Close = std::function<void()>;

    ~Sheet() override;
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    /// Presents the panel that is made, unless the window has a sheet.
    /// @param makePanel gets what takes the sheet away again, which may be called at any time
    /// @return null if there is another sheet
    static Sheet* present(QWidget& window, const std::function<SheetPanel*(Close close)>& makePanel);
    /// The sheet that the window has; null without one, and for one that is on its way out.
    [[nodiscard]] static Sheet* over(const QWidget& window);

    [[nodiscard]] SheetPanel& panel() const { return *m_panel; }
    void leave();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    explicit Sheet(QWidget& window);

    void setPanel(SheetPanel* panel);
    void fit();
    void follow();
    void keepFocus(QWidget* now);
    [[nodiscard]] bool isReachable(const QWidget& widget) const;

    QWidget& m_window;
    SheetPanel* m_panel = nullptr;
    QPointer<QWidget> m_focusBefore;
    QPointer<QWidget> m_focusInside; ///< the last that had it
    bool m_isLeaving = false;
    AnimatedValue m_presence; ///< from 0 to 1
};

} // namespace tarvin
