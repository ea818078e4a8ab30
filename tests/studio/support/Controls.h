#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>

#include <stdexcept>

namespace tarvin::test {

/// What assistive technology calls it.
[[nodiscard]] inline QString spokenName(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

/// The buttons of that name that are there to be seen, in the order in which they were made.
[[nodiscard]] inline QList<QAbstractButton*> buttonsNamed(const QWidget& parent, const QString& name)
{
    QList<QAbstractButton*> found;
    const auto buttons = parent.findChildren<QAbstractButton*>();
    for (QAbstractButton* const button : buttons) {
        if (button->isVisibleTo(&parent) && spokenName(*button) == name)
            found += button;
    }
    return found;
}

[[nodiscard]] inline bool hasButton(const QWidget& parent, const QString& name)
{
    return !buttonsNamed(parent, name).isEmpty();
}

[[nodiscard]] inline QAbstractButton& buttonNamed(const QWidget& parent, const QString& name, qsizetype place = 0)
{
    const QList<QAbstractButton*> found = buttonsNamed(parent, name);
    if (place >= found.size())
        throw std::invalid_argument("no such button: " + name.toStdString());
    return *found[place];
}

/// Does what assistive technology finds first to be done.
inline void activate(QWidget& widget)
{
    QAccessibleActionInterface* const actions = QAccessible::queryAccessibleInterface(&widget)->actionInterface();
    actions->doAction(actions->actionNames().value(0));
}

/// What the labels say that are there to be seen.
[[nodiscard]] inline QStringList shownTexts(const QWidget& parent)
{
    QStringList texts;
    const auto labels = parent.findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        if (label->isVisibleTo(&parent) && !label->text().isEmpty())
            texts += label->text();
    }
    return texts;
}

/// The names of the parts of that kind that are there to be seen.
template <typename Part> [[nodiscard]] QStringList spokenNames(const QWidget& parent)
{
    QStringList names;
    const auto parts = parent.findChildren<Part*>();
    for (Part* const part : parts) {
        if (part->isVisibleTo(&parent))
            names += spokenName(*part);
    }
    return names;
}

} // namespace tarvin::test
