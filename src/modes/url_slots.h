#pragma once

#include "project/project_record.h"

namespace lanterra {

/// The walk through the pages of a project with several URLs by HScroll1: the boxes of the record show one
/// slot of the table. Without the several-URL mode nothing here has an effect.
class UrlSlots : public QObject {
    Q_OBJECT

public:
    /// The record must outlive this. Follows its HScroll1 from now on.
    explicit UrlSlots(ProjectRecord &projectRecord);

    /// Moves HScroll1 to a slot and fills the boxes, also if it stood there already.
    void Show(int slot);

    /// The address comes from the slot on show. Title, description and keywords come from there too, or from
    /// slot 0 while all pages share them.
    void HScroll1_Change();

    /// Gives an address that was emptied the one of the slot on show.
    void HScroll1_LostFocus();

private:
    ProjectRecord &record;
};

} // namespace lanterra
