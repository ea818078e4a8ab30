#include "platform/linux/desktop/IconTheme.h"

#include "platform/linux/desktop/KeyFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace tarvin::desktop {

namespace {

constexpr QStringView lastTheme = u"hicolor";
/// In the order in which a folder is searched.
constexpr auto suffixes = std::to_array<QStringView>({u".png", u".svg", u".xpm"});
/// How much worse a picture is for being too small than for being too large by as much.
constexpr int enlargingPenalty = 4;

/// What an index says of one folder, in its own words.
struct FolderRecord
{
    int size = 0;
    int scale = 1;
    QByteArray type = "Threshold";
    int least = 0; ///< 0: not said
    int most = 0;
    int threshold = 2;
};

int number(QByteArrayView text, int otherwise)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber && value > 0 ? value : otherwise;
}

void readLine(FolderRecord& record, const KeyFileLine& line)
{
    if (line.key == "Size")
        record.size = number(line.value, 0);
    else if (line.key == "Scale")
        record.scale = number(line.value, 1);
    else if (line.key == "Type")
        record.type = line.value.toByteArray();
    else if (line.key == "MinSize")
        record.least = number(line.value, 0);
    else if (line.key == "MaxSize")
        record.most = number(line.value, 0);
    else if (line.key == "Threshold")
        record.threshold = number(line.value, 2);
}

std::pair<int, int> sidesOf(const FolderRecord& record)
{
    int least = record.size;
    int most = record.size;
    if (record.type == "Scalable") {
        least = record.least > 0 ? record.least : record.size;
        most = record.most > 0 ? record.most : record.size;
    } else if (record.type == "Threshold") {
        least -= record.threshold;
        most += record.threshold;
    }
    return {least * record.scale, most * record.scale};
}

QStringList names(QByteArrayView list)
{
    return QString::fromUtf8(list).split(u',', Qt::SkipEmptyParts);
}

QString withoutSuffix(const QString& icon)
{
    const auto known = std::ranges::find_if(suffixes, [&](QStringView suffix) { return icon.endsWith(suffix); });
    return known != suffixes.end() ? icon.chopped(known->size()) : icon;
}

void addFiles(QStringList& files, const QString& folder, const QString& name)
{
    for (const QStringView suffix : suffixes) {
        QString file = folder + u'/' + name + suffix.toString();
        if (QFile::exists(file))
            files += std::move(file);
    }
}

} // namespace

IconPlaces IconPlaces::ofSession()
{
    return {.themeFolders = QIcon::themeSearchPaths(),
        .theme = QIcon::themeName(),
        .plainFolders = QIcon::fallbackSearchPaths()};
}

IconTheme::IconTheme(IconPlaces places)
    : m_places(std::move(places))
{
    addTheme(m_places.theme);
    addTheme(lastTheme.toString());
}

void IconTheme::addTheme(const QString& name)
{
    // The one that all fall back on comes last, whoever names it before.
    const bool isKnown = std::ranges::any_of(m_themes, [&](const Theme& theme) { return theme.name == name; });
    if (isKnown || name.isEmpty())
        return;
    m_themes.push_back(readTheme(name));
    const QStringList inherited = m_themes.back().inherited;
    for (const QString& parent : inherited) {
        if (parent != lastTheme)
            addTheme(parent);
    }
}

IconTheme::Theme IconTheme::readTheme(const QString& name) const
{
    Theme theme{.name = name, .inherited = {}, .folders = {}};
    QStringList roots;
    QByteArray index;
    for (const QString& folder : m_places.themeFolders) {
        const QString root = folder + u'/' + name;
        if (!QFileInfo(root).isDir())
            continue;
        roots += root;
        QFile file(root + QStringLiteral("/index.theme"));
        if (index.isEmpty() && file.open(QIODevice::ReadOnly))
            index = file.readAll();
    }
    std::map<QString, FolderRecord> records;
    QStringList listed;
    readKeyFile(index, [&](const KeyFileLine& line) {
        if (line.group != "Icon Theme")
            readLine(records[QString::fromUtf8(line.group)], line);
        else if (line.key == "Inherits")
            theme.inherited = names(line.value);
        else if (line.key == "Directories" || line.key == "ScaledDirectories")
            listed += names(line.value);
        return true;
    });
    for (const QString& folder : std::as_const(listed)) {
        const auto [least, most] = sidesOf(records[folder]);
        for (const QString& root : std::as_const(roots)) {
            if (const QString path = root + u'/' + folder; QFileInfo(path).isDir())
                theme.folders.push_back({.path = path, .least = least, .most = most});
        }
    }
    return theme;
}

QStringList IconTheme::filesOf(const QString& icon, int pixels) const
{
    if (QDir::isAbsolutePath(icon))
        return {icon};
    const QString name = withoutSuffix(icon);
    const auto badness = [pixels](const Folder& folder) {
        if (folder.most < pixels)
            return enlargingPenalty * (pixels - folder.most);
        return std::max(0, folder.least - pixels);
    };
    QStringList files;
    for (const Theme& theme : m_themes) {
        std::vector<const Folder*> folders;
        for (const Folder& folder : theme.folders)
            folders.push_back(&folder);
        std::ranges::stable_sort(
            folders, [&](const Folder* left, const Folder* right) { return badness(*left) < badness(*right); });
        for (const Folder* const folder : folders)
            addFiles(files, folder->path, name);
    }
    for (const QString& folder : m_places.plainFolders)
        addFiles(files, folder, name);
    return files;
}

} // namespace tarvin::desktop
