#pragma once

#include "model/FKey.h"
#include "studio/StudioCollaborators.h"
#include "ui/AnimatedValue.h"

#include <QPointer>
#include <QWidget>

#include <optional>

class QScrollArea;

namespace tarvin {

class AccessibilityWarningBanner;
class BottomFooterBar;
class StudioBody;
class TopHeaderBar;

/// The content of the Studio window: the main column, and at its right the pane that edits the selected key.
class MainContentView : public QWidget
{
    Q_OBJECT

public:
    static constexpr QSize leastSize{1180, 760};
    static constexpr QSize idealSize{1260, 800};

    MainContentView(const StudioCollaborators& collaborators, StudioSurfaces surfaces, QWidget* parent = nullptr);

    [[nodiscard]] TopHeaderBar& header() const { return *m_header; }
    [[nodiscard]] StudioBody& body() const { return *m_body; }
    [[nodiscard]] AccessibilityWarningBanner& banner() const { return *m_banner; }
    /// The pane for the selected key; null while there is none.
    [[nodiscard]] QWidget* actionPicker() const { return m_picker; }
    [[nodiscard]] std::optional<FKey> selectedKey() const;

    [[nodiscard]] QSize sizeHint() const override { return idealSize; }
    [[nodiscard]] QSize minimumSizeHint() const override { return leastSize; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void followPermission();
    void followSelection();
    void removePicker();
    /// A pane that goes leaves the keyboard with its key.
    void takeFocusFromPicker();
    void layOut();
    void fitBody();

    StudioCollaborators m_with;
    StudioSurfaces m_surfaces;
    TopHeaderBar* m_header;
    AccessibilityWarningBanner* m_banner;
    QScrollArea* m_scroll;
    StudioBody* m_body;
    BottomFooterBar* m_footer;
    QPointer<QWidget> m_picker;
    std::optional<FKey> m_pickerKey; ///< that the pane edits, also while it slides out
    AnimatedValue m_pickerShare; ///< how much of the pane has slid in, from 0 to 1
    int m_columnWidth = 0; ///< of everything but the pane
};

} // namespace tarvin
