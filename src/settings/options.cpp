#include "settings/options.h"

#include "support/numbers.h"

#include <limits>

namespace lanterra {

QString Options::Text(const Option &option) const {
    return store.Get(option.section.toString(), option.name.toString());
}

std::optional<int> Options::Number(const Option &option) const {
    using Limits = std::numeric_limits<qint16>;
    const QString text = Text(option);
    const double number = LeadingNumber(text);
    if (!IsNumeric(text) || number < Limits::min() || number > Limits::max())
        return {};
    return RoundHalfEven(static_cast<float>(number));
}

bool Options::Set(const Option &option, const QString &text) {
    return store.Set(option.section.toString(), option.name.toString(), text);
}

bool Options::Set(const Option &option, int number) { return Set(option, QString::number(number)); }

bool Options::SetAll(const QList<OptionText> &texts) {
    QList<StoredSetting> stored;
    for (const OptionText &each : texts)
        stored.append({each.option.section.toString(), each.option.name.toString(), each.text});
    return store.SetAll(stored);
}

bool Options::ForgetStartup() { return store.DeleteSection(startupSection.toString()); }

} // namespace lanterra
