// The timers of the forms on a virtual clock: their real ticks are held
// back, and `espera` delivers the ticks that fall due in the time it
// advances, one by one in order of time. So a scenario sees the same ticks
// at every run, however fast the machine.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <vector>

class QWidget;

namespace sorvelo::roteiro {

class TempoVirtual : public QObject {
public:
    // Takes over the named timers of a form (those with an interval).
    void adota(QWidget* forma);
    // A timer started since the last look counts its interval from now.
    void observa();
    // Advances the clock by ms, delivering the ticks due; entreTicks runs after
    // each and stops the advance when it returns false.
    void avanca(int64_t ms, const std::function<bool()>& entreTicks);
    int64_t agora() const { return agora_; }

protected:
    bool eventFilter(QObject* alvo, QEvent* e) override;

private:
    struct Relogio {
        QPointer<QTimer> timer;
        int64_t proximo = 0;
        bool ativo = false;
    };
    std::vector<Relogio> relogios_;
    int64_t agora_ = 0;
    const QEvent* entregando_ = nullptr;
};

} // namespace sorvelo::roteiro
