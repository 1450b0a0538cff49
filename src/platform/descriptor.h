#pragma once

#include <unistd.h>

namespace kalvane {

/// Owns a file descriptor.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    int Get() const { return number_; }

  private:
    int number_;
};

}  // namespace kalvane
