// The dialog "Sortear números para combinação", opened by the picture
// PicSort1: it marks a quantity of numbers at random on the grid, one by
// one, so that the person sees them appear.
#pragma once

#include "edicao/SortComb.h"
#include "forms/Formulario.h"

class QLineEdit;
class QScrollBar;

namespace sorvelo {

class JanelaSortComb : public Formulario {
    Q_OBJECT
public:
    explicit JanelaSortComb(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;

protected:
    void showEvent(QShowEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    bool eventFilter(QObject* alvo, QEvent* e) override;

private:
    void ok();

    SortComb s_;
    QLineEdit* txtDez_;
    QScrollBar* scrDez_;
    bool ativado_ = false;
    bool sorteando_ = false;
};

} // namespace sorvelo
