#pragma once

#include "controls/button.h"
#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "project/multi_url_table.h"

#include <array>
#include <vector>

namespace lanterra {

/// What a project says of its page and its owner. The record has no state beside its controls, whose names
/// are the field names of the project file, and the table of several URLs that follows them.
class ProjectRecord : public QObject {
    Q_OBJECT

public:
    /// Stored texts hold at most this many UTF-16 units.
    static constexpr qsizetype fieldSize = 255;

    static constexpr int noColumn = -1;

    struct TextField {
        QString name; ///< of the control and of the stored field
        TextBox *box;
        bool cutOnSave;        ///< the box itself is cut to fieldSize before it is stored
        int column = noColumn; ///< where MultiUrlTable holds it for several URLs
    };
    struct CheckField {
        QString name;
        CheckBox *box;
    };

    ProjectRecord();

    /// All text fields in the order in which they are stored and loaded.
    const std::vector<TextField> &TextFields() const { return textFields; }
    const std::vector<CheckField> &CheckFields() const { return checkFields; }

    /// The field behind a column of MultiUrlTable, 0 to 8.
    const TextField &FieldOfColumn(int column) const;

    /// The eleven boxes of the owner's contact data, in the order of the form.
    std::array<TextBox *, 11> ContactBoxes();

    /// Copies a slot of the table into the nine boxes.
    void ShowSlot(int slot);

    /// Back to one URL: the mode off, the table empty, the first slot on show and "http://" as address.
    void ResetUrls();

    /// Switches the several-URL mode and the marker of the button that leads to it.
    void SetMultiUrlMode(bool on);
    bool MultiUrlMode() const { return multiUrlMode; }

    TextBox txtURL, txtTitle, txtDesc;
    std::array<TextBox, 6> txtKey; ///< txtKey1 to txtKey6
    TextBox txtEmail, txtName1, txtName2, txtCompany, txtStreet, txtState, txtCountry, txtCity, txtZip,
        txtPhone, txtFax;
    TextBox txtLimit; ///< seconds that a request may take
    TextBox txtName;  ///< both names joined, for the report; also where the focus goes to be out of the way
    TextBox txttrazim;
    ComboBox Combo2;
    CheckBox chkMultiSameDesc, Check1, Check3;
    ScrollBar HScroll1; ///< the slot on show
    Button SSCommand7;  ///< "multiple", marked while the mode is on

    MultiUrlTable multiUrlTable;
    int MultiUrlUpper = 0;       ///< highest slot in use
    bool LoadingProject = false; ///< the boxes change because a project is being loaded

private:
    void ListFields();
    void NameControls();
    void FollowChanges();

    std::vector<TextField> textFields;
    std::vector<CheckField> checkFields;
    bool multiUrlMode = false;
};

/// The left part of a text that a stored field holds, never half of a surrogate pair.
QString CutToFieldSize(const QString &text);

} // namespace lanterra
