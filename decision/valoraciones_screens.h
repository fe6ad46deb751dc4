// The entry screen both ELECTRE models share: the title, the valuation scale
// and the model's own fields on the left, the two selectors and Rediseñar
// Tabla on the right, and the table of valuations below (criteria in rows,
// alternatives in columns, the weights in the column after the last).
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <array>
#include <initializer_list>

#include "decision/valoraciones.h"
#include "frame/gui/control_array.h"
#include "frame/gui/model_screens.h"
#include "frame/gui/table_screen.h"

namespace vorel::decision {

// The selectors and the table of an ELECTRE entry screen.
class PanelValoraciones {
 public:
  // Builds them on `screen`: the selectors beside the field `escala`, the
  // table in `body` below the fields.
  void crear(gui::EntryScreen& screen, QVBoxLayout* body, QLineEdit* escala,
             std::function<void()> rediseñar);
  void leer(TablaValoraciones& f) const;
  void escribir(const TablaValoraciones& f);
  QLineEdit* primeraCelda() const { return C_[0](0); }

 private:
  // Paints a column head in the back colour the fields hold (blue, green, red).
  static void paintHead(QLabel* head, long backColor);

  QComboBox* NumAlternativas_ = nullptr;
  QComboBox* NumCriterios_ = nullptr;
  std::array<gui::ControlArray<QLineEdit>, 7> C_;  // C_[j - 1] is the array Cj
  gui::ControlArray<QLabel> LblCriterios_;
  gui::ControlArray<QLabel> LblAlternativas_;
};

template <class Fields>
class ValoracionesEntry : public gui::ModelEntry<Fields> {
 public:
  // A text field of the model, below the scale: its member, control name,
  // label and tool-tip.
  struct Campo {
    std::string Fields::*member;
    const char* name;
    const char* label;
    const char* toolTip;
  };

  ValoracionesEntry(const std::string& name, const QString& heading, const QString& intro,
                    std::initializer_list<Campo> campos)
      : gui::ModelEntry<Fields>(name, heading, intro, "Título", "Problema 1") {
    bindings_.bind(&Fields::Título, this->titleField());
    QLineEdit* escala =
        this->addField("escalaValoracion", "Escala de Valoración", "Escala de valoración");
    bindings_.bind(&Fields::escalaValoracion, escala);
    for (const Campo& c : campos)
      bindings_.bind(c.member, this->addField(c.name, c.label, c.toolTip));
    panel_.crear(*this, this->body(), escala, [this] {
      if (this->edit([](Fields& f) { return rediseñar(f); })) panel_.primeraCelda()->setFocus();
    });
    setFields(Fields{});
  }

  Fields fields() const override {
    Fields f;
    bindings_.read(f);
    panel_.leer(f);
    return f;
  }
  void setFields(const Fields& f) override {
    bindings_.write(f);
    panel_.escribir(f);
  }

 private:
  gui::TextBindings<Fields> bindings_;
  PanelValoraciones panel_;
};

}  // namespace vorel::decision
