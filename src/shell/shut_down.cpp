#include "shell/shut_down.h"

#include "database/maintenance.h"
#include "project/site_schema.h"
#include "support/file_names.h"

#include <QFile>
#include <utility>

using namespace Qt::StringLiterals;

namespace lanterra {

void ShutDown::Run() {
    if (std::exchange(begun, true))
        return;
    if (parts.startUp.Finished() && !parts.files.Ended())
        StoreAll();
    // Save As leaves its file open, and an answer can have come in while the steps above waited.
    parts.project.database.Unbind();
    QFile::remove(parts.scratchFile);
    parts.frame.SetVisible(false);
}

void ShutDown::StoreAll() {
    const bool saved = SaveOnExit();
    QFile::remove(parts.scratchFile);
    StoreSameDescription();
    parts.project.database.Unbind();
    // A file that could not be written is left alone, and its backup with it.
    if (saved)
        Compact();
    parts.files.AskSaveProject();
}

// A project without a file is the business of AskSaveProject.
bool ShutDown::SaveOnExit() {
    if (parts.options.Number(option::saveOnExit) != 1 || parts.project.path.Base.isEmpty())
        return true;
    StoreResult result = parts.files.SaveProject(QString());
    while (!result.stored && WantsOtherName(result.failure)) {
        parts.files.mnuFileSaveAs_Click();
        result = parts.files.SaveProject(QString());
    }
    return result.stored;
}

bool ShutDown::WantsOtherName(const QString &failure) {
    const MessageBox question{u"The project could not be saved. Save it under another name ?"_s,
                              u"Error"_s,
                              BoxIcon::Critical,
                              BoxButtons::YesNo,
                              BoxAnswer::No,
                              failure};
    return parts.dialogs.Show(question) == BoxAnswer::Yes;
}

void ShutDown::StoreSameDescription() {
    const int value = parts.project.record.chkMultiSameDesc.Value();
    if (!parts.options.Set(option::sameDescription, value))
        parts.dialogs.Show({u"The settings could not be saved. "_s, u"Error"_s, BoxIcon::Critical});
}

// The old backup stays until the new one takes its place: deleted beforehand, it would be missing just when
// the project turns out to be damaged.
void ShutDown::Compact() {
    const QString &base = parts.project.path.Base;
    if (!FileExists(base))
        return;
    const QString failure = CompactThroughBackup(base, base + u".bak"_s, SiteSchema());
    if (!failure.isEmpty())
        parts.dialogs.Show({.text = u"The project could not be compacted. It stays as it was saved. "_s,
                            .title = u"Error"_s,
                            .icon = BoxIcon::Critical,
                            .detail = failure});
}

} // namespace lanterra
