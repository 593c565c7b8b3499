#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <vector>

namespace lanterra {

/// A list of names, each with a check mark, and one current entry. As a model it offers the names, their
/// marks (Qt::CheckStateRole) and whether they can be changed now. It bears the members of Control itself,
/// because a model can't be a second QObject.
class ListBox : public QAbstractListModel {
    Q_OBJECT

public:
    static constexpr int noEntry = -1;

    /// Whether a face offers the check marks. The marks themselves are there in either case.
    enum class Marks { Offered, None };
    explicit ListBox(Marks offeredMarks = Marks::Offered) : markOffer(offeredMarks) {}

    int ListCount() const { return static_cast<int>(items.size()); }
    bool Contains(int index) const { return index >= 0 && index < ListCount(); }

    /// The name of an entry, empty outside the list.
    QString Item(int index) const { return Contains(index) ? items.at(index) : QString(); }
    const QStringList &Items() const { return items; }
    void AddItem(const QString &name, bool marked = false);
    void SetItems(const QStringList &names);
    void Clear();

    /// The check mark of an entry: false outside the list, where setting it does nothing.
    bool Selected(int index) const { return Contains(index) && marks[static_cast<std::size_t>(index)]; }
    void SetSelected(int index, bool marked);
    void SetAllSelected(bool marked);
    void InvertSelected();
    /// Marks of the whole list in one step; values behind its end are passed over.
    void SetMarks(const std::vector<bool> &newMarks);
    int SelCount() const { return selCount; }

    /// The current entry, noEntry for none. An index outside the list means none.
    int ListIndex() const { return listIndex; }
    void SetListIndex(int index);

    /// Makes an entry current as a person's choice, of which Clicked tells.
    void Click(int index);

    /// The name of the current entry; setting it makes the first entry of exactly that name current, none if
    /// there is no such entry.
    QString Text() const { return Item(listIndex); }
    void SetText(const QString &name);

    bool Enabled() const { return enabled; }
    void SetEnabled(bool on);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    /// A mark changed, once for a change of many.
    void MarksChanged();
    void ListIndexChanged(int index);
    /// A person has chosen an entry; it is current now.
    void Clicked();
    void EnabledChanged(bool on);

private:
    void MarksWereSet();

    Marks markOffer;
    QStringList items;
    std::vector<bool> marks; ///< one for each item
    int selCount = 0;        ///< number of true values in marks
    int listIndex = noEntry;
    bool enabled = true;
};

} // namespace lanterra
