#pragma once

#import <Foundation/Foundation.h>

#include <utility>

namespace zarvil::cocoa {

/// A share in an Objective-C object, which may be nil.
template <typename Class>
class Ref {
public:
    Ref() = default;
    explicit Ref(Class* object) : object_([object retain]) {}
    /// Takes over the share that `alloc` or `copy` gave.
    [[nodiscard]] static Ref adopt(Class* object) {
        Ref made;
        made.object_ = object;
        return made;
    }
    Ref(const Ref& other) : Ref(other.object_) {}
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nil)) {}
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ref() { [object_ release]; }

    [[nodiscard]] Class* get() const { return object_; }

private:
    Class* object_ = nil;
};

} // namespace zarvil::cocoa
