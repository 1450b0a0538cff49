#pragma once

#include <QTreeView>

class QFileSystemModel;

namespace kalvane {

/// True when a folder is `upper` or stands somewhere below it.
bool IsWithin(const QString& upper, const QString& folder);

/// The folders of this computer as a tree, one of them chosen.
class FolderTree : public QTreeView {
    Q_OBJECT

  public:
    FolderTree(const QString& name, QWidget* parent);

    /// The chosen folder; empty when none is.
    QString Folder() const;
    /// Chooses a folder and brings it into sight; one that does not exist chooses none.
    void SetFolder(const QString& folder);

  Q_SIGNALS:
    void FolderChanged();

  protected:
    void showEvent(QShowEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void ShowChosen();

    QFileSystemModel* model_;
};

}  // namespace kalvane
