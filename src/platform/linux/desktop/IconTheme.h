#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tarvin::desktop {

/// Where the pictures of icons lie.
struct IconPlaces
{
    QStringList themeFolders; ///< the folders `icons`, the user's own first
    QString theme; ///< what the user has chosen
    QStringList plainFolders; ///< pictures of no theme

    /// As the toolkit knows it. Main thread, after the application object.
    [[nodiscard]] static IconPlaces ofSession();
};

/// The pictures of an icon theme, of the themes it inherits from and of the one that all fall back on, by the rules of
/// the desktops' icon themes. What the themes consist of is read once, which is slow; after that any thread may ask.
class IconTheme
{
public:
    explicit IconTheme(IconPlaces places);

    /// The files with a picture of that icon, best first: those of the themes in their order, in each the one whose
    /// size is nearest, a larger one rather than a smaller.
    /// @param icon its name, or the path of a picture
    /// @param pixels the side that is wanted
    [[nodiscard]] QStringList filesOf(const QString& icon, int pixels) const;

private:
    /// A folder of pictures that are good for these sides, in pixels.
    struct Folder
    {
        QString path;
        int least;
        int most;
    };
    struct Theme
    {
        QString name;
        QStringList inherited;
        std::vector<Folder> folders;
    };

    void addTheme(const QString& name);
    [[nodiscard]] Theme readTheme(const QString& name) const;

    IconPlaces m_places;
    std::vector<Theme> m_themes; ///< in the order in which they are searched
};

} // namespace tarvin::desktop
