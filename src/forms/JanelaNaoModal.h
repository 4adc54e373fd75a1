// The one holder of a window that is not modal (the verification today,
// the typed bets and the bet-by-bet view next): the window owns its logic
// and is deleted when it closes; the holder's pointer then reads null, so
// nothing is used after it is gone.
#pragma once

#include <QPointer>

#include <utility>

namespace sorvelo {

template <typename Janela> class JanelaNaoModal {
public:
    JanelaNaoModal() = default;
    JanelaNaoModal(const JanelaNaoModal&) = delete;
    JanelaNaoModal& operator=(const JanelaNaoModal&) = delete;
    // The window goes with its holder.
    ~JanelaNaoModal() { apaga(); }

    // The open window, or null.
    Janela* aberta() const { return janela_.data(); }
    // Makes the window and shows it (Formulario::mostra).
    template <typename... Args> Janela* abre(Args&&... args) {
        apaga();
        janela_ = new Janela(std::forward<Args>(args)...);
        janela_->mostra();
        return janela_.data();
    }
    // The window hidden and deleted at once.
    void apaga() {
        if (!janela_) return;
        janela_->hide();
        delete janela_.data();
    }

private:
    QPointer<Janela> janela_;
};

} // namespace sorvelo
