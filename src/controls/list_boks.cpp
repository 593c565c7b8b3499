#include "controls/list_boks.h"

namespace lanterra {

void ListBoks::Clear() {
    beginResetModel();
    lines.clear();
    endResetModel();
    SetListIndex(noLine);
}

void ListBoks::AddItem(const QString &text) {
    beginInsertRows({}, ListCount(), ListCount());
    lines.append(text);
    endInsertRows();
}

void ListBoks::RemoveItem(int index) {
    if (!Contains(index))
        return;
    beginRemoveRows({}, index, index);
    lines.removeAt(index);
    endRemoveRows();
    if (listIndex == index)
        SetListIndex(noLine);
    else if (listIndex > index)
        SetListIndex(listIndex - 1);
}

void ListBoks::SetItem(int index, const QString &text) {
    if (!Contains(index))
        return;
    lines[index] = text;
    emit dataChanged(this->index(index), this->index(index));
}

void ListBoks::SetListIndex(int index) {
    if (!Contains(index))
        index = noLine;
    if (listIndex == index)
        return;
    listIndex = index;
    emit ListIndexChanged(index);
}

int ListBoks::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : ListCount() + 1; }

QVariant ListBoks::data(const QModelIndex &index, int role) const {
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    return isText && index.isValid() ? Item(index.row()) : QVariant();
}

bool ListBoks::setData(const QModelIndex &index, const QVariant &value, int role) {
    const QString text = value.toString().trimmed();
    if (role != Qt::EditRole || !index.isValid())
        return false;
    if (Contains(index.row()) && text.isEmpty())
        RemoveItem(index.row());
    else if (Contains(index.row()))
        SetItem(index.row(), text);
    else if (!text.isEmpty())
        AddItem(text);
    return true;
}

Qt::ItemFlags ListBoks::flags(const QModelIndex &index) const {
    return QAbstractListModel::flags(index) | Qt::ItemIsEditable;
}

} // namespace lanterra
