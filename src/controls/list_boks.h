#pragma once

#include <QAbstractListModel>
#include <QStringList>

namespace lanterra {

/// A list into which a person types lines. As a model it has one empty row behind its lines: a text typed
/// there becomes a new line, and a line whose text is taken away goes, so a plain list view with its usual
/// editor is all that a face needs. Blanks around a typed text are dropped.
class ListBoks : public QAbstractListModel {
    Q_OBJECT

public:
    static constexpr int noLine = -1;

    void Clear();
    void AddItem(const QString &text);
    /// Those below move up. An index outside the list removes nothing.
    void RemoveItem(int index);

    int ListCount() const { return static_cast<int>(lines.size()); }

    /// The empty text outside the list, where setting does nothing.
    QString Item(int index) const { return lines.value(index); }
    void SetItem(int index, const QString &text);

    /// The line that is selected, noLine for none; an index outside the list means none.
    int ListIndex() const { return listIndex; }
    void SetListIndex(int index);
    QString Text() const { return Item(listIndex); }

    /// One row more than there are lines.
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    void ListIndexChanged(int index);

private:
    bool Contains(int index) const { return index >= 0 && index < ListCount(); }

    QStringList lines;
    int listIndex = noLine;
};

} // namespace lanterra
