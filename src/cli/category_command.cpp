#include "cli/commands.h"
#include "cli/name_lookup.h"
#include "cli/project_session.h"
#include "cli/text_table.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

struct CategoryChoice {
    QString directory;
    QString category;
};

/// The entry of this name, empty if there is none.
QString Find(const QStringList &entries, const QString &name) {
    return entries.value(IndexOfName(entries, name));
}

/// Works the lists of directories and categories as a person does.
class CategoryLists {
public:
    explicit CategoryLists(Program &theProgram)
        : lists(theProgram.project.lists), selection(theProgram.categorySelection) {}

    const QStringList &Directories() const { return lists.List2.Items(); }

    const ListBox &Show(const QString &directory) {
        lists.List2.SetText(directory);
        selection.List2_Click();
        return lists.List3;
    }

    bool Choose(const CategoryChoice &choice) {
        Show(choice.directory);
        lists.List3.SetText(choice.category);
        return selection.ChooseCategory();
    }

private:
    SiteLists &lists;
    CategorySelection &selection;
};

// A directory's name may hold "=" itself, so the first split that gives a directory counts.
Outcome ReadChoice(const QString &word, CategoryLists &lists, CategoryChoice &choice) {
    qsizetype equals = word.indexOf(u'=');
    if (equals < 0)
        return Outcome::WrongUse(u"'%1' is not of the form DIRECTORY=CATEGORY."_s.arg(word));
    while (equals >= 0 && choice.directory.isEmpty()) {
        choice.directory = Find(lists.Directories(), word.left(equals));
        choice.category = word.mid(equals + 1);
        equals = word.indexOf(u'=', equals + 1);
    }
    if (choice.directory.isEmpty())
        return Outcome::Failed(UnknownName(u"directory"_s, word.section(u'=', 0, 0), lists.Directories()));
    const QStringList offers = lists.Show(choice.directory).Items();
    const QString category = Find(offers, choice.category);
    if (category.isEmpty())
        return Outcome::Failed(u"%1 has no category '%2'; it offers %3."_s.arg(
            choice.directory, choice.category, offers.join(", "_L1)));
    choice.category = category;
    return {};
}

Outcome ChooseCategories(const QStringList &words, Program &program) {
    CategoryLists lists(program);
    QList<CategoryChoice> choices;
    for (const QString &word : words) {
        CategoryChoice choice;
        if (Outcome read = ReadChoice(word, lists, choice); !read.Good())
            return read;
        choices << choice;
    }
    for (const CategoryChoice &choice : choices) {
        if (!lists.Choose(choice))
            return Outcome::Failed(u"The category of %1 could not be stored: %2"_s.arg(
                choice.directory, program.project.database.Data2.Failure()));
    }
    return {};
}

Outcome ChooseByKeyword(const QString &keyword, ProjectSession &session) {
    Project &project = session.program.project;
    project.record.txttrazim.SetText(keyword);
    if (!session.program.categorySelection.SelectByKeyword(keyword))
        return Outcome::Failed(
            u"The categories could not be stored: %1"_s.arg(project.database.Data2.Failure()));
    return session.Save();
}

// A choice can be one that is not offered: the default, or an old one. So it is read from the table.
void PrintChoices(Project &project, Console &console) {
    QList<QStringList> rows;
    DataControl &directories = project.database.Data2;
    EnsureRecordSource(directories, u"Categories"_s);
    for (bool here = directories.MoveFirst(); here; here = directories.MoveNext()) {
        const QString choice = directories.Text(u"Selected"_s);
        rows << QStringList{directories.Text(u"Name"_s), choice.isEmpty() ? u"-"_s : choice};
    }
    for (const QString &line : AlignedLines(rows))
        console.Print(line);
}

Outcome RunCategory(const CommandCall &call) {
    const QStringList words = call.arguments.mid(1);
    const bool byKeyword = call.options.isSet(u"keyword"_s);
    if (byKeyword && !words.isEmpty())
        return Outcome::WrongUse(u"Give either --keyword or categories."_s);
    ProjectSession session(call);
    Outcome outcome = session.Open(call.arguments.first());
    if (outcome.Good())
        outcome = byKeyword ? ChooseByKeyword(call.options.value(u"keyword"_s), session)
                            : ChooseCategories(words, session.program);
    if (outcome.Good() && words.isEmpty())
        PrintChoices(session.program.project, call.console);
    return outcome;
}

} // namespace

Command CategoryCommand() {
    return {.name = u"category"_s,
            .usage = u"FILE [DIRECTORY=CATEGORY ... | --keyword WORD]"_s,
            .summary = u"choose the category in each directory, or list the choices"_s,
            .options = {{u"keyword"_s, u"choose in every directory the first category that holds WORD"_s,
                         u"WORD"_s}},
            .run = RunCategory};
}

} // namespace lanterra
