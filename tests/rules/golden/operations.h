// The exported functions of a rule table, called alike whatever their structures.
#pragma once

#include <functional>

namespace golden {

/// A record or a list.
class Pointer {
public:
    Pointer(const void *place) : place_(place) {}

    template <typename Structure>
    operator Structure *() const {
        return static_cast<Structure *>(const_cast<void *>(place_));
    }

private:
    const void *place_;
};

using Read = std::function<void(Pointer list)>;
using ReadOne = std::function<void(int id, Pointer item)>;
using Write = std::function<void(Pointer item)>;
using RemoveWhere = std::function<void(const char *condition)>;
using RemoveOfKind = std::function<void(const char *condition, int kind)>;
using RemoveRow = std::function<void(int id)>;
using RemoveAll = std::function<void()>;

/// A list builder.
class Build {
public:
    Build() = default;

    template <typename List>
    Build(int (*build)(List *list, const char *sql)) : function_(reinterpret_cast<const void *>(build)), call_(build) {}

    int operator()(Pointer list, const char *sql) const { return call_(list, sql); }

    /// What tells it from others.
    const void *function() const { return function_; }

private:
    const void *function_ = nullptr;
    std::function<int(Pointer list, const char *sql)> call_{};
};

}  // namespace golden
