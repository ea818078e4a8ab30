#pragma once

#include <QWidget>

class QAbstractButton;

namespace tarvin {

class OutlinedButton;
class TextBlock;

/// Says that keys are being recorded, and ends it.
class RecordingBanner : public QWidget
{
    Q_OBJECT

public:
    explicit RecordingBanner(QWidget* parent = nullptr);

    void setText(const QString& text);
    [[nodiscard]] QAbstractButton& doneButton() const;

Q_SIGNALS:
    void done();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextBlock* m_text;
    OutlinedButton* m_done;
};

} // namespace tarvin
