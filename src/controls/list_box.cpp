#include "controls/list_box.h"

#include <algorithm>

namespace lanterra {

void ListBox::AddItem(const QString &name, bool marked) {
    beginInsertRows({}, ListCount(), ListCount());
    items.append(name);
    marks.push_back(marked);
    selCount += marked ? 1 : 0;
    endInsertRows();
    if (marked)
        emit MarksChanged();
}

void ListBox::SetItems(const QStringList &names) {
    beginResetModel();
    items = names;
    marks.assign(static_cast<std::size_t>(names.size()), false);
    selCount = 0;
    listIndex = noEntry;
    endResetModel();
    emit MarksChanged();
    emit ListIndexChanged(listIndex);
}

void ListBox::Clear() { SetItems({}); }

void ListBox::SetSelected(int index, bool marked) {
    if (Selected(index) == marked || !Contains(index))
        return;
    marks[static_cast<std::size_t>(index)] = marked;
    selCount += marked ? 1 : -1;
    emit dataChanged(this->index(index), this->index(index), {Qt::CheckStateRole});
    emit MarksChanged();
}

void ListBox::SetAllSelected(bool marked) {
    marks.assign(marks.size(), marked);
    MarksWereSet();
}

void ListBox::InvertSelected() {
    marks.flip();
    MarksWereSet();
}

void ListBox::SetMarks(const std::vector<bool> &newMarks) {
    std::copy_n(newMarks.begin(), std::min(newMarks.size(), marks.size()), marks.begin());
    MarksWereSet();
}

void ListBox::MarksWereSet() {
    selCount = static_cast<int>(std::count(marks.begin(), marks.end(), true));
    if (!items.isEmpty())
        emit dataChanged(index(0), index(ListCount() - 1), {Qt::CheckStateRole});
    emit MarksChanged();
}

void ListBox::SetListIndex(int index) {
    if (!Contains(index))
        index = noEntry;
    if (listIndex == index)
        return;
    listIndex = index;
    emit ListIndexChanged(index);
}

void ListBox::Click(int index) {
    SetListIndex(index);
    emit Clicked();
}

void ListBox::SetText(const QString &name) { SetListIndex(static_cast<int>(items.indexOf(name))); }

void ListBox::SetEnabled(bool on) {
    if (enabled == on)
        return;
    enabled = on;
    if (!items.isEmpty())
        emit dataChanged(index(0), index(ListCount() - 1)); // the flags of all entries are others now
    emit EnabledChanged(on);
}

int ListBox::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : ListCount(); }

QVariant ListBox::data(const QModelIndex &index, int role) const {
    if (!Contains(index.row()))
        return {};
    if (role == Qt::DisplayRole)
        return items.at(index.row());
    if (role == Qt::CheckStateRole && markOffer == Marks::Offered)
        return Selected(index.row()) ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool ListBox::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::CheckStateRole || markOffer == Marks::None || !enabled || !Contains(index.row()))
        return false;
    SetSelected(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags ListBox::flags(const QModelIndex &index) const {
    const Qt::ItemFlags usual = QAbstractListModel::flags(index);
    if (!enabled)
        return usual & ~Qt::ItemIsEnabled;
    return markOffer == Marks::Offered ? usual | Qt::ItemIsUserCheckable : usual;
}

} // namespace lanterra
