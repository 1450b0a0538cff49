#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/notice.h"

namespace kalvane {

/// The core's notices as message boxes over a screen.
class MessageNotice final : public Notice {
  public:
    explicit MessageNotice(QWidget* parent) : parent_(parent) {}

    void Show(const std::string& text, const std::string& title, NoticeIcon icon) override;
    bool Confirm(const std::string& text, const std::string& title) override;

  private:
    QPointer<QWidget> parent_;
};

}  // namespace kalvane
