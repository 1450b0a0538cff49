#include "backup/screens/folder_tree.h"

#include <QFileSystemModel>
#include <QTimer>

namespace kalvane {

bool IsWithin(const QString& upper, const QString& folder) {
    return folder == upper ||
           folder.startsWith(upper.endsWith(QLatin1Char('/')) ? upper : upper + QLatin1Char('/'));
}

FolderTree::FolderTree(const QString& name, QWidget* parent)
    : QTreeView(parent), model_(new QFileSystemModel(this)) {
    setObjectName(name);
    model_->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    model_->setRootPath(QString());
    setModel(model_);
    setHeaderHidden(true);
    for (int column = 1; column < model_->columnCount(); ++column) hideColumn(column);
    // Folders are read as they come into sight and sorted right after; the chosen one moves meanwhile.
    connect(model_, &QFileSystemModel::directoryLoaded, this, [this](const QString& loaded) {
        if (IsWithin(loaded, Folder())) QTimer::singleShot(0, this, [this] { ShowChosen(); });
    });
}

QString FolderTree::Folder() const {
    return currentIndex().isValid() ? model_->filePath(currentIndex()) : QString();
}

void FolderTree::SetFolder(const QString& folder) {
    const QModelIndex index = folder.isEmpty() ? QModelIndex() : model_->index(folder);
    setCurrentIndex(index);
    if (index.isValid()) expand(index);
    ShowChosen();
}

void FolderTree::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    ShowChosen();
}

void FolderTree::ShowChosen() {
    if (currentIndex().isValid()) scrollTo(currentIndex(), PositionAtCenter);
}

void FolderTree::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    Q_EMIT FolderChanged();
}

}  // namespace kalvane
