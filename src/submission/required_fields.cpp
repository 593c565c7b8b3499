#include "submission/required_fields.h"

namespace lanterra {

std::array<TextBox *, requiredFieldCount> BindRequiredFields(ProjectRecord &record) {
    return {&record.txtEmail,  &record.txtName1,   &record.txtName2,  &record.txtCompany, &record.txtStreet,
            &record.txtState,  &record.txtCountry, &record.txtCity,   &record.txtZip,     &record.txtPhone,
            &record.txtFax,    &record.txtTitle,   &record.txtKey[0], &record.txtKey[1],  &record.txtKey[2],
            &record.txtKey[3], &record.txtKey[4],  &record.txtKey[5], &record.txtLimit,   &record.txtLimit};
}

} // namespace lanterra
