#pragma once

#import <Foundation/Foundation.h>

#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin::macos {

// Texts on their way between the program and the system. Both keep them in UTF-16, so nothing is lost, lone surrogates
// included.

[[nodiscard]] NSString* nsString(QStringView text);
/// Of a constant in ASCII.
[[nodiscard]] NSString* nsString(const char* text);
/// @return the empty text for nil
[[nodiscard]] QString qString(NSString* text);
/// @return nothing for nil
[[nodiscard]] std::optional<QString> optionalString(NSString* text);
[[nodiscard]] NSArray<NSString*>* nsArray(const QStringList& texts);

} // namespace tarvin::macos
