#pragma once

#include "studio/picker/PickerTexts.h"

#include <QWidget>

namespace tarvin {

class TextLabel;

/// The strip under the header that says whether the key does something of the user's.
class StatusBannerView : public QWidget
{
    Q_OBJECT

public:
    static constexpr int bannerHeight = 44;

    explicit StatusBannerView(QWidget* parent);

    void showBanner(const StatusBanner& banner);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    StatusBanner::Tone m_tone = StatusBanner::Tone::factory;
    TextLabel* m_title;
    TextLabel* m_detail;
};

} // namespace tarvin
