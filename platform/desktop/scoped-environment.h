// Temporary changes of environment variables.
#pragma once

#include <QByteArray>
#include <vector>

// Restores the former values. Only while the process has one thread (getenv(3)).
class ScopedEnvironment {
  public:
    ScopedEnvironment() = default;
    ~ScopedEnvironment() { Restore(); }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

    void Set(const char* name, const QByteArray& value) {
        Save(name);
        qputenv(name, value);
    }

    void Unset(const char* name) {
        Save(name);
        qunsetenv(name);
    }

    void Restore() {
        for (const Variable& variable : former_) {
            if (variable.was_set) {
                qputenv(variable.name, variable.value);
            } else {
                qunsetenv(variable.name);
            }
        }
        former_.clear();
    }

  private:
    struct Variable {
        const char* name;
        QByteArray value;
        bool was_set;
    };

    void Save(const char* name) {
        former_.push_back({name, qgetenv(name), qEnvironmentVariableIsSet(name)});
    }

    std::vector<Variable> former_;
};
