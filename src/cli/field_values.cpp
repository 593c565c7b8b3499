#include "cli/field_values.h"

#include "cli/console.h"
#include "cli/name_lookup.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

template <class Fields>
auto *BoxOf(const Fields &fields, const QString &name) {
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&](const auto &field) { return field.name == name; });
    return found == fields.end() ? nullptr : found->box;
}

QStringList AllNames(const ProjectRecord &record) {
    QStringList names;
    for (const ProjectRecord::TextField &field : record.TextFields())
        names << field.name;
    for (const ProjectRecord::CheckField &field : record.CheckFields())
        names << field.name;
    return names;
}

Outcome ValueRefusal(const FieldValue &field, const ProjectRecord &record) {
    if (BoxOf(record.TextFields(), field.name))
        return {};
    if (!BoxOf(record.CheckFields(), field.name))
        return Outcome::WrongUse(UnknownName(u"field"_s, field.name, AllNames(record)));
    return field.value == "0"_L1 || field.value == "1"_L1
               ? Outcome{}
               : Outcome::WrongUse(
                     u"%1 is a check box, which is 0 or 1, not '%2'."_s.arg(field.name, field.value));
}

void LeaveBox(const TextBox &box, Program &program, Console &console) {
    ProjectRecord &record = program.project.record;
    if (&box == &record.txtURL)
        program.entry.txtURL_LostFocus();
    else if (&box == &record.txtTitle)
        program.entry.txtTitle_LostFocus();
    else if (&box == &record.txtDesc)
        program.entry.txtDesc_LostFocus();
    else if (&box == &record.Combo2 && !record.Combo2.Entries().contains(box.Text()))
        console.Tell(u"Sites know no subject '%1', so a run makes it Miscellaneous. They know %2."_s.arg(
            box.Text(), record.Combo2.Entries().join(", "_L1)));
}

} // namespace

Outcome ReadFieldValues(const QStringList &words, const ProjectRecord &record, QList<FieldValue> &values) {
    for (const QString &word : words) {
        const qsizetype equals = word.indexOf(u'=');
        if (equals < 0)
            return Outcome::WrongUse(u"'%1' is not of the form FIELD=VALUE."_s.arg(word));
        values.append({word.left(equals), word.mid(equals + 1)});
        if (Outcome refusal = ValueRefusal(values.last(), record); !refusal.Good())
            return refusal;
    }
    return {};
}

void EnterFieldValues(const QList<FieldValue> &values, Program &program, Console &console) {
    const ProjectRecord &record = program.project.record;
    for (const FieldValue &field : values) {
        if (TextBox *box = BoxOf(record.TextFields(), field.name)) {
            box->SetText(field.value);
            LeaveBox(*box, program, console);
        } else if (CheckBox *check = BoxOf(record.CheckFields(), field.name)) {
            check->SetValue(field.value.toInt());
        }
    }
}

} // namespace lanterra
