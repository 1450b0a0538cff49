#include "ui/dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "ui/file_filter.h"
#include "ui/screen_memory.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kFileDialogSize(820, 520);

QMessageBox::Icon ToToolkitIcon(NoticeIcon icon) {
    switch (icon) {
        case NoticeIcon::Information:
            return QMessageBox::Information;
        case NoticeIcon::Warning:
            return QMessageBox::Warning;
        case NoticeIcon::Error:
            return QMessageBox::Critical;
        case NoticeIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QString ButtonCaption(QMessageBox::StandardButton button) {
    switch (button) {
        case QMessageBox::Yes:
            return QStringLiteral("是");
        case QMessageBox::No:
            return QStringLiteral("否");
        case QMessageBox::Cancel:
            return QStringLiteral("取消");
        default:
            return QStringLiteral("确定");
    }
}

/// Dialogs over the toolkit's own.
class RealDialogs final : public Dialogs {
  public:
    void Message(QWidget* parent, const QString& text, const QString& title, NoticeIcon icon) override {
        ShowBox(parent, text, title, ToToolkitIcon(icon), QMessageBox::Ok);
    }

    bool AskYesNo(QWidget* parent, const QString& text, const QString& title, Answer usual) override {
        return ShowBox(parent, text, title, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
                       usual == Answer::Yes ? QMessageBox::Yes : QMessageBox::No) == QMessageBox::Yes;
    }

    bool AskOkCancel(QWidget* parent, const QString& text, const QString& title, Answer usual) override {
        return ShowBox(parent, text, title, QMessageBox::Question, QMessageBox::Ok | QMessageBox::Cancel,
                       usual == Answer::Yes ? QMessageBox::Ok : QMessageBox::Cancel) == QMessageBox::Ok;
    }

    std::optional<QString> InputText(QWidget* parent, const QString& title, const QString& prompt,
                                     const QString& value) override {
        QInputDialog dialog(Over(parent));
        dialog.setWindowTitle(Titled(title));
        dialog.setLabelText(prompt);
        dialog.setTextValue(value);
        dialog.setOkButtonText(QStringLiteral("确定"));
        dialog.setCancelButtonText(QStringLiteral("取消"));
        if (dialog.exec() != QDialog::Accepted) return std::nullopt;
        return dialog.textValue();
    }

    QString OpenFileName(QWidget* parent, const QString& purpose, const QString& filter) override {
        QFileDialog dialog(Over(parent), QStringLiteral("打开"), RememberedFolder(purpose),
                           ToToolkitFilter(filter));
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setLabelText(QFileDialog::Accept, QStringLiteral("打开"));
        return Choose(dialog, purpose);
    }

    QString SaveFileName(QWidget* parent, const SaveRequest& request) override {
        QFileDialog dialog(Over(parent), QStringLiteral("另存为"), RememberedFolder(request.purpose),
                           ToToolkitFilter(request.filter));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setDefaultSuffix(request.suffix);
        dialog.setLabelText(QFileDialog::Accept, QStringLiteral("保存"));
        // The question is asked below, in our own words.
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        if (!request.name.isEmpty()) dialog.selectFile(FileName(request));
        for (;;) {
            const QString file = Choose(dialog, request.purpose);
            if (file.isEmpty() || !request.asksOverwrite || !QFileInfo::exists(file)) return file;
            const QString question =
                QStringLiteral("文件“%1”已经存在，要替换它吗？").arg(QFileInfo(file).fileName());
            if (AskYesNo(parent, question, PromptTitle(), Answer::Yes)) return file;
        }
    }

  private:
    static QWidget* Over(QWidget* parent) {
        return parent != nullptr ? parent : QApplication::activeWindow();
    }

    static QString Titled(const QString& title) {
        return title.isEmpty() ? QApplication::applicationName() : title;
    }

    static int ShowBox(QWidget* parent, const QString& text, const QString& title, QMessageBox::Icon icon,
                       QMessageBox::StandardButtons buttons,
                       QMessageBox::StandardButton usual = QMessageBox::NoButton) {
        QMessageBox box(icon, Titled(title), text, buttons, Over(parent));
        box.setDefaultButton(usual);
        box.setTextFormat(Qt::PlainText);  // texts may hold what the operator typed
        for (QAbstractButton* button : box.buttons()) {
            button->setText(ButtonCaption(box.standardButton(button)));
        }
        return box.exec();
    }

    /// The suggested name without what no file name may hold.
    static QString FileName(const SaveRequest& request) {
        QString name = request.name;
        for (QChar& c : name) {
            if (c == QLatin1Char('/') || c < QLatin1Char(' ')) c = QLatin1Char('-');
        }
        return name + QLatin1Char('.') + request.suffix;
    }

    static QString Choose(QFileDialog& dialog, const QString& purpose) {
        dialog.setLabelText(QFileDialog::Reject, QStringLiteral("取消"));
        dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("查找范围："));
        dialog.setLabelText(QFileDialog::FileName, QStringLiteral("文件名："));
        dialog.setLabelText(QFileDialog::FileType, QStringLiteral("文件类型："));
        dialog.resize(dialog.size().expandedTo(kFileDialogSize));
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
        const QString file = dialog.selectedFiles().front();
        RememberFolder(purpose, QFileInfo(file).absolutePath());
        return file;
    }
};

Dialogs*& Replacement() {
    static Dialogs* replacement = nullptr;
    return replacement;
}

}  // namespace

Dialogs& UseDialogs() {
    static RealDialogs real;
    return Replacement() != nullptr ? *Replacement() : real;
}

void SetDialogs(Dialogs* dialogs) {
    Replacement() = dialogs;
}

QString PromptTitle() {
    return QStringLiteral("提示");
}

void Tell(QWidget* parent, const QString& text) {
    UseDialogs().Message(parent, text, PromptTitle(), NoticeIcon::Information);
}

void TellAt(QWidget* parent, const QString& text, QWidget* control) {
    Tell(parent, text);
    control->setFocus();
    if (auto* box = qobject_cast<QLineEdit*>(control)) box->selectAll();
}

bool Ask(QWidget* parent, const QString& text) {
    return UseDialogs().AskYesNo(parent, text, PromptTitle(), Dialogs::Answer::Yes);
}

bool AskToLose(QWidget* parent, const QString& text) {
    return UseDialogs().AskYesNo(parent, text, PromptTitle(), Dialogs::Answer::No);
}

}  // namespace kalvane
