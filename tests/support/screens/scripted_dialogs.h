#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <deque>
#include <optional>

#include "ui/dialogs.h"

namespace kalvane::test {

/// Stands in for the operator at every message and file dialog: answers in the order in which the answers
/// were laid down, and keeps what was shown as "title|text". A question without an answer fails the test.
class ScriptedDialogs final : public Dialogs {
  public:
    ScriptedDialogs() { SetDialogs(this); }
    ~ScriptedDialogs() override { SetDialogs(nullptr); }

    QStringList shown;
    QList<NoticeIcon> icons;     ///< of the messages
    QList<Answer> usualAnswers;  ///< of the questions
    QStringList filters;         ///< of the file dialogs
    QStringList names;           ///< suggested by the save dialogs
    std::deque<bool> answers;
    std::deque<QString> inputs;  ///< a null text cancels
    std::deque<QString> files;   ///< an empty name cancels

    /// What was shown since the last call, a line each.
    QString TakeShown() { return std::exchange(shown, {}).join(QLatin1Char('\n')); }

    void Message(QWidget*, const QString& text, const QString& title, NoticeIcon icon) override {
        Record(title, text);
        icons << icon;
    }
    bool AskYesNo(QWidget*, const QString& text, const QString& title, Answer usual) override {
        usualAnswers << usual;
        return Ask(title, text);
    }
    bool AskOkCancel(QWidget*, const QString& text, const QString& title, Answer usual) override {
        usualAnswers << usual;
        return Ask(title, text);
    }
    std::optional<QString> InputText(QWidget*, const QString& title, const QString& prompt,
                                     const QString&) override {
        Record(title, prompt);
        const QString input = Next(inputs, title);
        return input.isNull() ? std::nullopt : std::optional(input);
    }
    QString OpenFileName(QWidget*, const QString& purpose, const QString& filter) override {
        filters << filter;
        return Next(files, purpose);
    }
    QString SaveFileName(QWidget*, const SaveRequest& request) override {
        filters << request.filter;
        names << request.name;
        return Next(files, request.purpose);
    }

  private:
    void Record(const QString& title, const QString& text) { shown << title + QLatin1Char('|') + text; }
    bool Ask(const QString& title, const QString& text) {
        Record(title, text);
        return Next(answers, text);
    }
    template <typename Answer>
    static Answer Next(std::deque<Answer>& prepared, const QString& question) {
        if (prepared.empty()) {
            ADD_FAILURE() << "no answer prepared for: " << question.toStdString();
            return {};
        }
        Answer answer = prepared.front();
        prepared.pop_front();
        return answer;
    }
};

}  // namespace kalvane::test
