#include "frame/spreadsheet.h"

#include <algorithm>

namespace vorel {

namespace {
std::string count(int n, const char* one, const char* many) {
  return std::to_string(n) + " " + (n == 1 ? one : many);
}
std::string rowsAndColumns(int rows, int columns) {
  return count(rows, "fila", "filas") + " y " + count(columns, "columna", "columnas");
}
}  // namespace

Block parseBlock(std::string_view text) {
  if (text.empty()) return {};
  if (text.ends_with("\r\n"))
    text.remove_suffix(2);
  else if (text.ends_with('\n') || text.ends_with('\r'))
    text.remove_suffix(1);
  Block block;
  std::vector<std::string> row(1);
  for (std::size_t k = 0; k < text.size(); ++k) {
    const char c = text[k];
    if (c == '\t') {
      row.emplace_back();
    } else if (c == '\r' || c == '\n') {
      if (c == '\r' && k + 1 < text.size() && text[k + 1] == '\n') ++k;
      block.push_back(std::move(row));
      row.assign(1, std::string());
    } else {
      row.back() += c;
    }
  }
  block.push_back(std::move(row));
  return block;
}

std::string blockText(const Block& block) {
  std::string out;
  for (const auto& row : block) {
    for (std::size_t c = 0; c < row.size(); ++c) out += (c ? "\t" : "") + row[c];
    out += "\n";
  }
  return out;
}

int blockWidth(const Block& block) {
  std::size_t width = 0;
  for (const auto& row : block) width = std::max(width, row.size());
  return static_cast<int>(width);
}

std::string pasteRefusal(const Block& block, int top, int left, int rows, int columns,
                         bool redesign) {
  const int height = static_cast<int>(block.size()), width = blockWidth(block);
  if (top + height <= rows && left + width <= columns) return {};
  std::string text = "El bloque copiado tiene " + rowsAndColumns(height, width) +
                     " y no cabe en la tabla desde esta casilla";
  if (redesign)
    text += ": hacen falta " + rowsAndColumns(top + height, left + width) +
            " de casillas, y la tabla muestra " + rowsAndColumns(rows, columns) +
            ". Elija un tamaño mayor, pulse Rediseñar y pegue de nuevo.";
  else
    text += ", donde caben " +
            rowsAndColumns(std::max(0, rows - top), std::max(0, columns - left)) + ".";
  return text + " No se ha pegado nada.";
}

}  // namespace vorel
