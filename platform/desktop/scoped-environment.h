// Temporary changes of environment variables.
#pragma once

#include <QByteArray>
#include <utility>
#include <vector>

// Restores the former values. Only while the process has one thread (getenv(3)).
class ScopedEnvironment {
  public:
    ScopedEnvironment() = default;
    ~ScopedEnvironment() { Restore(); }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

    // A null `value` removes the variable.
    void Set(const char* name, const QByteArray& value) {
        former_.emplace_back(name, qgetenv(name));
        Assign(name, value);
    }

    void Restore() {
        for (; !former_.empty(); former_.pop_back()) {
            Assign(former_.back().first, former_.back().second);
        }
    }

  private:
    static void Assign(const char* name, const QByteArray& value) {
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }

    std::vector<std::pair<const char*, QByteArray>> former_;  // null if there was none
};
