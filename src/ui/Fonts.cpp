#include "ui/Fonts.h"

#include <QFontDatabase>
#include <QResource>

#include <array>
#include <cmath>
#include <map>
#include <utility>

// Resources of a static library are linked in only when somebody asks for them, outside any namespace.
static void initializeFontResource()
{
    Q_INIT_RESOURCE(fonts);
}

namespace tarvin {

namespace {

constexpr auto roundedFiles =
    std::to_array<QStringView>({u"Nunito-500", u"Nunito-600", u"Nunito-700", u"Nunito-800", u"Nunito-900"});
constexpr auto fixedWidthFiles = std::to_array<QStringView>({u"JetBrainsMono-Medium", u"JetBrainsMono-Bold"});

QString registeredFamily(QStringView file)
{
    const QResource resource(QStringLiteral(":/fonts/%1").arg(file));
    // The resource lies in the program's own pages for as long as it runs, so the font needs no copy of it.
    const int id = QFontDatabase::addApplicationFontFromData(
        QByteArray::fromRawData(reinterpret_cast<const char*>(resource.data()), resource.size()));
    return QFontDatabase::applicationFontFamilies(id).value(0);
}

struct Families
{
    Families()
    {
        initializeFontResource();
        for (const QStringView file : roundedFiles)
            rounded = QStringList{registeredFamily(file)};
        for (const QStringView file : fixedWidthFiles)
            fixedWidth = QStringList{registeredFamily(file)};
    }

    QStringList rounded;
    QStringList fixedWidth;
};

QFont::Weight fontWeight(const TextStyle& style)
{
    if (style.face == TextFace::fixedWidth)
        return style.weight >= TextWeight::semibold ? QFont::Bold : QFont::Medium;
    switch (style.weight) {
    case TextWeight::regular:
        return QFont::Medium;
    case TextWeight::medium:
        return QFont::DemiBold;
    case TextWeight::semibold:
    case TextWeight::bold:
        return QFont::Bold;
    case TextWeight::heavy:
        return QFont::ExtraBold;
    case TextWeight::black:
        return QFont::Black;
    }
    Q_UNREACHABLE();
}

} // namespace

QFont fontOf(const TextStyle& style)
{
    QFont font = referenceFont(style);
    font.setPixelSize(static_cast<int>(std::lround(style.size)));
    return font;
}

const QFont& referenceFont(const TextStyle& style)
{
    static const Families families;
    static std::map<std::pair<TextFace, QFont::Weight>, QFont> fonts;
    const QFont::Weight weight = fontWeight(style);
    const auto [place, isNew] = fonts.try_emplace({style.face, weight});
    QFont& font = place->second;
    if (!isNew)
        return font;
    font.setFamilies(style.face == TextFace::rounded ? families.rounded : families.fixedWidth);
    font.setPixelSize(referenceFontSize);
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    int strategy = QFont::PreferAntialias | QFont::NoSubpixelAntialias;
    // The only shaping that the fixed-width face knows is to draw pairs of signs as one.
    if (style.face == TextFace::fixedWidth)
        strategy |= QFont::PreferNoShaping;
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(strategy));
    return font;
}

} // namespace tarvin
