#pragma once

#include "project/project_files.h"
#include "project/site_selection.h"

namespace lanterra {

/// Brings a project up to a newer master: its sites and directories become those of the master, and the sites
/// without a success in its statistics are selected. Record and statistics stay row for row. The program ends
/// behind that and is started again by hand.
class SiteDatabaseUpdate final : public SiteDatabaseImport {
public:
    /// All must outlive this.
    struct Parts {
        Project &project;
        MainFrame &frame;
        StatusForm &status;
        ProjectFiles &files;
        SiteSelection &selection;
        Options &options;
        Dialogs &dialogs;
        EventQueue &queue;
    };

    explicit SiteDatabaseUpdate(const Parts &theParts) : parts(theParts) {}

    /// Runs inside the load of the project, with Data1 bound to the master and Data2 to the project. All new
    /// rows reach the project's file in one step, or none does and the frame's notice tells why.
    bool ImportSiteDatabase() override;

private:
    QString TakeOverRows();
    QString FillCopy(const QString &copy);
    bool CopyRows(const QString &table, const QStringList &fields);
    bool CopyVersion();
    void TellDone();
    void StoreSelection();
    void CloseAndCompact();

    Parts parts;
};

} // namespace lanterra
