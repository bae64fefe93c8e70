#pragma once

#include <QString>

#include <optional>

namespace vexal {

namespace preference {

inline constexpr QStringView serverURL = u"ServerURL";
inline constexpr QStringView lastEmail = u"LastEmail"; ///< Address of the last person who signed in here.

/// Set while the credential store still holds what it should no longer hold: what is found there is not to be used.
inline constexpr QStringView credentialPending = u"CredentialPending";

} // namespace preference

/// The person's small settings, strings by key.
class Preferences
{
public:
    virtual ~Preferences() = default;

    /// The value as it is at this moment, also when another program has just changed it; nothing when it is not set.
    virtual std::optional<QString> value(QStringView key) = 0;
    virtual void setValue(QStringView key, const QString &value) = 0;
    virtual void remove(QStringView key) = 0;
};

} // namespace vexal
