#include "optimise/ctable02.h"

#include <string>

#include "numeric/assertion.h"

namespace kalvane {

void CTable02::Create(std::int16_t n) {
    nodes_.assign(static_cast<std::size_t>(n) + 1, Node{});
    for (int position = 1; position < n; ++position) {
        nodes_[static_cast<std::size_t>(position)].next = static_cast<std::int16_t>(position + 1);
        nodes_[static_cast<std::size_t>(position) + 1].prev = static_cast<std::int16_t>(position);
    }
    head_ = 1;
    tail_ = n;
    count_ = n;
}

void CTable02::AddNew(std::int16_t value, std::int16_t count, std::int16_t position) {
    At(position).value = value;
    At(position).count = count;
}

void CTable02::Remove(std::int16_t position) {
    const Node& node = At(position);
    if (position == head_) {
        head_ = node.next;
    } else if (position == tail_) {
        tail_ = node.prev;
    } else {
        At(node.prev).next = node.next;
        At(node.next).prev = node.prev;
    }
    --count_;
}

std::int16_t CTable02::FindJustFor(std::int16_t rest, std::int16_t stock, Notice& notice) const {
    const std::int16_t shortest = At(tail_).value;
    if (shortest > stock) {
        notice.Show("过大：" + std::to_string(shortest), "", NoticeIcon::None);
        return kBadData;
    }
    if (shortest < 0) {
        notice.Show("异常值：" + std::to_string(shortest), "", NoticeIcon::None);
        return kBadData;
    }
    if (rest < shortest) return kNothingFits;
    std::int16_t position = head_;
    for (std::int16_t step = 0; step < count_; ++step) {
        if (At(position).value <= rest) return position;
        position = At(position).next;
    }
    return kNothingFits;
}

void CTable02::Retrive(std::int16_t& value, std::int16_t& count, std::int16_t position) const {
    value = At(position).value;
    count = At(position).count;
}

void CTable02::Update(std::int16_t count, std::int16_t position) {
    At(position).count = count;
}

CTable02::Node& CTable02::At(std::int16_t position) {
    KALVANE_ASSERT(position >= 1 && static_cast<std::size_t>(position) < nodes_.size());
    return nodes_[static_cast<std::size_t>(position)];
}

const CTable02::Node& CTable02::At(std::int16_t position) const {
    KALVANE_ASSERT(position >= 1 && static_cast<std::size_t>(position) < nodes_.size());
    return nodes_[static_cast<std::size_t>(position)];
}

}  // namespace kalvane
