#pragma once

#include "ports/settings_store.h"
#include "settings/option.h"

#include <optional>

namespace lanterra {

struct OptionText {
    Option option;
    QString text;
};

/// The stored options of this user. Nothing is kept here: each call goes to the store, which must outlive
/// this.
class Options {
public:
    explicit Options(SettingsStore &settingsStore) : store(settingsStore) {}

    /// Empty for an option that was never written.
    QString Text(const Option &option) const;

    /// Nothing if the text is no number, or one that 16 bits can't hold.
    std::optional<int> Number(const Option &option) const;

    /// False if the store could not take it; the old value is then still there.
    bool Set(const Option &option, const QString &text);
    bool Set(const Option &option, int number);

    /// Stores all of them or none.
    bool SetAll(const QList<OptionText> &texts);

    /// Deletes all options of the section "Startup", which forgets the last project.
    bool ForgetStartup();

private:
    SettingsStore &store;
};

} // namespace lanterra
