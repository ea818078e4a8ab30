#pragma once

#include "studio/MainContentView.h"

#include <QWidget>

namespace tarvin {

/// The Studio: the program's main window. Made when it is first opened, and kept from then on.
class StudioWindow : public QWidget
{
    Q_OBJECT

public:
    static constexpr QStringView windowTitleText = u"Tarvin — MacBook Air Keyboard Studio";

    StudioWindow(const StudioCollaborators& collaborators, StudioSurfaces surfaces);

    [[nodiscard]] MainContentView& content() const { return *m_content; }

private:
    MainContentView* m_content;
};

} // namespace tarvin
