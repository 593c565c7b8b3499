#include "park/practice_site.h"

#include <algorithm>

namespace lanterra {

const SiteField *PracticeSite::FieldFor(QStringView word) const {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [word](const SiteField &field) { return field.word == word; });
    return found == fields.end() ? nullptr : &*found;
}

} // namespace lanterra
