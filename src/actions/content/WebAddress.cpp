#include "actions/content/WebAddress.h"

#include "model/DefaultTexts.h"

#include <QUrl>

namespace tarvin {

namespace {

constexpr QStringView assistantPage = u"https://gemini.google.com/app";

/// What a query may hold as it is, beside letters, digits and "-._~".
constexpr char allowedInQuery[] = "!$&'()*+,/:;=?@";
/// What an address may hold as it is; its own percent signs are escapes already.
constexpr char allowedInAddress[] = "!$&'()*+,/:;=?@#[]%";

QString queryValue(const QString& text)
{
    // Half a character can't be written in an address, and then nothing is.
    return text.isValidUtf16() ? QString::fromLatin1(QUrl::toPercentEncoding(text, allowedInQuery)) : QString();
}

} // namespace

std::optional<QString> webAddress(const std::optional<QString>& written)
{
    QString address = written.value_or(QString()).trimmed();
    if (address.isEmpty())
        return defaultWebAddress.toString();
    if (!address.startsWith(u"http://") && !address.startsWith(u"https://"))
        address.prepend(u"https://");
    const QUrl url(address, QUrl::TolerantMode);
    if (!url.isValid())
        return std::nullopt;
    // What is an address to the letter goes out to the letter.
    const bool isPlain = QUrl::toPercentEncoding(address, allowedInAddress) == address.toUtf8();
    return isPlain ? address : QString::fromLatin1(url.toEncoded());
}

QString assistantAddress(const QString& question)
{
    return question.isEmpty() ? assistantPage.toString() : assistantPage.toString() + u"?q="_qs + queryValue(question);
}

} // namespace tarvin
