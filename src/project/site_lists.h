#pragma once

#include "controls/label.h"
#include "controls/list_box.h"

#include <QStringList>

namespace lanterra {

/// The lists of sites, directories and categories. Entry i of List1 is row i of table Data.
class SiteLists : public QObject {
    Q_OBJECT

public:
    SiteLists();

    /// Brings the count text up to date.
    void UpdateSelectedCount();

    /// Copies the entries of List1 into SiteNames.
    void KeepSiteNames() { SiteNames = List1.Items(); }

    /// The name of the site at a position of List1, empty outside.
    QString SiteName(int index) const { return SiteNames.value(index); }

    ListBox List1;                       ///< automated sites, their marks are the selection
    ListBox List5;                       ///< semi-automated sites; the marks are not stored
    ListBox lstTopEngines;               ///< top search engines; the marks are not stored
    ListBox List2{ListBox::Marks::None}; ///< directories that want a category
    ListBox List3{ListBox::Marks::None}; ///< categories of the directory that is current in List2
    Label lblSelected;
    QStringList SiteNames; ///< the names in List1 order, as they stood when the project was opened
};

} // namespace lanterra
