// The clock is handed in, so that every dated output can be tested to the byte.
#pragma once

#include "plattform/kalender.h"

namespace jorv {

class Uhr {
public:
    virtual ~Uhr() = default;
    /// The present local time, whole seconds.
    virtual Zeitpunkt jetzt() const = 0;
};

/// The machine's local time; the environment variable JORV_JETZT (2016-12-01T12:00:00) takes its place when it is set.
class Systemuhr final : public Uhr {
public:
    Zeitpunkt jetzt() const override;
};

/// Stands still at a given instant.
class Festuhr final : public Uhr {
public:
    explicit Festuhr(Zeitpunkt zeit) : m_zeit(zeit) {}
    Zeitpunkt jetzt() const override { return m_zeit; }

private:
    Zeitpunkt m_zeit;
};

}  // namespace jorv
