// A change that others watch: any number of listeners, each told in the
// order it came. A second listener never replaces the first; a listener
// that goes away first takes itself off (desliga, or a Ligacao that it
// holds). A Ligacao may outlive the Aviso it was made on.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace sorvelo {

template <typename... Args> class Aviso {
public:
    using Ouvinte = std::function<void(Args...)>;
    struct Item {
        size_t id;
        Ouvinte f;
    };
    struct Lista {
        std::vector<Item> itens;
        size_t ultimo = 0;
        void desliga(size_t id) {
            for (auto it = itens.begin(); it != itens.end(); ++it)
                if (it->id == id) {
                    itens.erase(it);
                    return;
                }
        }
    };

    Aviso() = default;
    // A copy of the watched object starts with no listeners.
    Aviso(const Aviso&) {}
    Aviso& operator=(const Aviso&) { return *this; }

    // Adds a listener; the number takes it off again.
    size_t liga(Ouvinte f) {
        lista_->itens.push_back({++lista_->ultimo, std::move(f)});
        return lista_->ultimo;
    }
    void desliga(size_t id) { lista_->desliga(id); }
    size_t quantos() const { return lista_->itens.size(); }

    void operator()(Args... args) const {
        // A listener may take itself off, or add another, while it is told:
        // the listeners of the moment are told from a copy (on the stack
        // when they are few, as they nearly always are).
        const std::vector<Item>& itens = lista_->itens;
        if (itens.size() <= Poucos) {
            Ouvinte copia[Poucos];
            const size_t n = itens.size();
            for (size_t i = 0; i < n; ++i)
                copia[i] = itens[i].f;
            for (size_t i = 0; i < n; ++i)
                copia[i](args...);
            return;
        }
        const auto copia = itens;
        for (const auto& o : copia)
            o.f(args...);
    }

    std::weak_ptr<Lista> lista() const { return lista_; }

private:
    static constexpr size_t Poucos = 4;
    std::shared_ptr<Lista> lista_ = std::make_shared<Lista>();
};

// A listener for as long as this object lives.
class Ligacao {
public:
    Ligacao() = default;
    template <typename... Args, typename F> Ligacao(Aviso<Args...>& aviso, F f) {
        const size_t id = aviso.liga(std::move(f));
        desfaz_ = [lista = aviso.lista(), id] {
            if (auto l = lista.lock()) l->desliga(id);
        };
    }
    Ligacao(Ligacao&& o) noexcept : desfaz_(std::exchange(o.desfaz_, nullptr)) {}
    Ligacao& operator=(Ligacao&& o) noexcept {
        if (this != &o) {
            solta();
            desfaz_ = std::exchange(o.desfaz_, nullptr);
        }
        return *this;
    }
    Ligacao(const Ligacao&) = delete;
    Ligacao& operator=(const Ligacao&) = delete;
    ~Ligacao() { solta(); }
    void solta() {
        if (desfaz_) std::exchange(desfaz_, nullptr)();
    }

private:
    std::function<void()> desfaz_;
};

} // namespace sorvelo
