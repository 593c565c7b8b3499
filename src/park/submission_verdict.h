#pragma once

#include "park/form_fields.h"
#include "park/practice_site.h"

namespace lanterra {

/// What a practice site finds wrong with what it received.
struct Objection {
    QString answer; ///< key of the refusal; empty if all is in order
    QString field;  ///< label of the field at fault
};

/// Checks the fields as such sites do: required ones are filled, none is too long, and addresses, e-mail
/// addresses, categories and subjects are what they claim to be. Fields that the site doesn't know are passed
/// over.
Objection FindObjection(const PracticeSite &site, const QList<FormField> &fields);

/// The seven words for the general subject of a page.
const QStringList &Subjects();

} // namespace lanterra
