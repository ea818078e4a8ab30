#include "platform/macos/translation/ApplicationRecord.h"

namespace tarvin::macos {

ActivationPolicy activationPolicyOf(std::int64_t policy) noexcept
{
    switch (policy) {
    case 0:
        return ActivationPolicy::regular;
    case 1:
        return ActivationPolicy::accessory;
    default:
        return ActivationPolicy::prohibited;
    }
}

RunningApplication runningApplicationOf(const ApplicationRecord& record)
{
    RunningApplication application{
        .processIdentifier = record.processIdentifier,
        .bundleIdentifiers = {},
        .localizedName = record.localizedName.value_or(QString()),
        .activationPolicy = activationPolicyOf(record.activationPolicy),
        .isHidden = record.isHidden,
        .isTerminated = record.isTerminated,
    };
    if (record.bundleIdentifier)
        application.bundleIdentifiers = {*record.bundleIdentifier};
    return application;
}

} // namespace tarvin::macos
