#include "ui/message_notice.h"

#include "ui/dialogs.h"
#include "ui/text.h"

namespace kalvane {

void MessageNotice::Show(const std::string& text, const std::string& title, NoticeIcon icon) {
    UseDialogs().Message(parent_, ToQt(text), ToQt(title), icon);
}

bool MessageNotice::Confirm(const std::string& text, const std::string& title) {
    return UseDialogs().AskYesNo(parent_, ToQt(text), ToQt(title), Dialogs::Answer::Yes);
}

}  // namespace kalvane
