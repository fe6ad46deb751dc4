// The screens that the order-quantity models share: an entry screen of
// labelled fields bound to the model's fields, and a solution screen that
// reads them afresh and paints the model's report.
#pragma once

#include <initializer_list>

#include "frame/gui/model_screens.h"

namespace vorel::inventory {

// The labels of the fields that the order-quantity models have in common.
namespace etiquetas {
inline constexpr char D[] = "Demanda Anual (D)";
inline constexpr char E[] = "Coste de Emisión de cada pedido (E)";
inline constexpr char A[] = "Coste de Almacenamiento por unidad y año (A)";
inline constexpr char TS[] = "Tiempo de suministro (en días)";
inline constexpr char dias[] = "Período de Gestión (días laborables al año)";
inline constexpr char P[] = "Coste unitario del artículo";
}  // namespace etiquetas

// The core functions of a model that its entry screen calls.
template <class Fields>
struct Modelo {
  void (*nuevo)(Fields&);
  void (*exchange)(ProblemFile&, Fields&);
  Messages (*check)(const Fields&);
  Pages (*solveAndReport)(Fields&);
};

template <class Fields>
class PedidoEntry : public gui::ModelEntry<Fields> {
 public:
  // A text box: the member it holds, its control name and its label.
  struct Campo {
    std::string Fields::*member;
    const char* name;
    const char* label;
  };

  PedidoEntry(const std::string& name, const QString& title, const QString& intro,
              Modelo<Fields> modelo, std::initializer_list<Campo> campos)
      : gui::ModelEntry<Fields>(name, title, intro, "Titulo1", "Problema1"), modelo_(modelo) {
    bindings_.bind(&Fields::Titulo1, this->titleField());
    for (const Campo& c : campos) bindings_.bind(c.member, this->addField(c.name, c.label));
  }

  Fields fields() const override {
    Fields f;
    bindings_.read(f);
    return f;
  }
  void setFields(const Fields& f) override { bindings_.write(f); }
  const Modelo<Fields>& modelo() const { return modelo_; }

 protected:
  void nuevo(Fields& f) override { modelo_.nuevo(f); }
  void exchange(ProblemFile& file, Fields& f) override { modelo_.exchange(file, f); }
  Messages check(const Fields& f) override { return modelo_.check(f); }

 private:
  Modelo<Fields> modelo_;
  gui::TextBindings<Fields> bindings_;
};

// The solution screen: every activation reads the entry screen's fields
// afresh and solves them.
template <class Fields>
class PedidoSolution : public gui::SolutionScreen {
 public:
  PedidoSolution(const std::string& name, const QString& label, int columns, int lines)
      : SolutionScreen(name, label, columns, lines) {}

 protected:
  Pages compute() override {
    auto& entrada = entry<PedidoEntry<Fields>>();
    Fields f = entrada.fields();
    return entrada.modelo().solveAndReport(f);
  }
};

}  // namespace vorel::inventory
