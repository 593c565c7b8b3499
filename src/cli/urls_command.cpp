#include "cli/commands.h"
#include "cli/project_session.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// A shorter address is not counted when a project is loaded, so it would be lost.
constexpr qsizetype shortestAddress = 11;

/// Equal addresses, ignoring case, count once and stand where the last of them was typed.
QStringList WithoutDuplicates(const QStringList &addresses) {
    QStringList kept;
    for (qsizetype i = 0; i < addresses.size(); ++i) {
        if (!addresses.mid(i + 1).contains(addresses[i], Qt::CaseInsensitive))
            kept << addresses[i];
    }
    return kept;
}

/// The typed addresses as the box for one would leave them.
QStringList Entered(const QStringList &typed, Program &program) {
    QStringList addresses;
    TextBox &box = program.project.record.txtURL;
    for (const QString &address : typed) {
        box.SetText(address.trimmed());
        program.entry.txtURL_LostFocus();
        addresses << box.Text();
    }
    return WithoutDuplicates(addresses);
}

Outcome AddressRefusal(const QStringList &addresses) {
    for (const QString &address : addresses) {
        if (address.size() < shortestAddress)
            return Outcome::WrongUse(u"An address has more than 10 characters, not so: %1."_s.arg(address));
        if (address.size() > ProjectRecord::fieldSize)
            return Outcome::WrongUse(u"An address has at most 255 characters, not so: %1."_s.arg(address));
    }
    if (addresses.size() > MultiUrlTable::slotCount)
        return Outcome::WrongUse(u"A project holds 10 addresses; too many are %1."_s.arg(
            addresses.mid(MultiUrlTable::slotCount).join(", "_L1)));
    return {};
}

Outcome StoreOne(const QString &address, ProjectSession &session) {
    Project &project = session.program.project;
    project.record.SetMultiUrlMode(false);
    project.record.MultiUrlUpper = 0;
    project.record.multiUrlTable.EraseUrls();
    project.record.txtURL.SetText(address);
    if (!DeleteUrlRows(project))
        return Outcome::Failed(
            u"The old addresses could not be removed: %1"_s.arg(project.database.Data2.Failure()));
    return session.Save();
}

Outcome StoreSeveral(const QStringList &addresses, ProjectSession &session) {
    ProjectRecord &record = session.program.project.record;
    record.SetMultiUrlMode(true);
    record.MultiUrlUpper = static_cast<int>(addresses.size()) - 1;
    record.multiUrlTable.EraseUrls();
    record.txtURL.SetText(addresses.first());
    for (int slot = 0; slot <= record.MultiUrlUpper; ++slot)
        record.multiUrlTable.SetCell(slot, MultiUrlTable::urlColumn, addresses.at(slot));
    // The first save over a project of one address writes slot 0 twice; the second one writes each slot once.
    session.program.files.SaveProject(QString());
    return session.Save();
}

void PrintAddresses(const ProjectRecord &record, Console &console) {
    if (!record.MultiUrlMode())
        console.Tell(u"The project has one address, the field txtURL."_s);
    for (int slot = 0; record.MultiUrlMode() && slot < MultiUrlTable::slotCount; ++slot) {
        const QString address = record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn);
        if (!address.isEmpty())
            console.Print(address);
    }
}

Outcome RunUrls(const CommandCall &call) {
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    if (call.arguments.size() == 1) {
        PrintAddresses(session.program.project.record, call.console);
        return {};
    }
    const QStringList addresses = Entered(call.arguments.mid(1), session.program);
    if (Outcome refusal = AddressRefusal(addresses); !refusal.Good())
        return refusal;
    return addresses.size() == 1 ? StoreOne(addresses.first(), session) : StoreSeveral(addresses, session);
}

} // namespace

Command UrlsCommand() {
    return {.name = u"urls"_s,
            .usage = u"FILE [URL ...]"_s,
            .summary = u"set or print the addresses of a several-URL project"_s,
            .options = {},
            .run = RunUrls};
}

} // namespace lanterra
