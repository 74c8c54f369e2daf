#include "adapters/zint/zint_encoder.h"

#include <zint.h>

#include <memory>
#include <string>

#include "platform/run_time_error.h"

namespace awizo {

std::vector<bool> ZintEncoder::gs1Symbol(std::string_view elements) const {
  const std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(),
                                                                        &ZBarcode_Delete);
  if (!symbol) throw errors::outOfMemory();
  symbol->symbology = BARCODE_GS1_128;
  symbol->input_mode = GS1_MODE | GS1PARENS_MODE;
  symbol->warn_level = WARN_FAIL_ALL;
  const std::string text(elements);
  const int failed =
      ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char*>(text.c_str()),
                      static_cast<int>(text.size()));
  if (failed != 0 || symbol->rows != 1) throw RunTimeError(5, symbol->errtxt);
  std::vector<bool> modules;
  modules.reserve(static_cast<std::size_t>(symbol->width));
  for (int i = 0; i < symbol->width; ++i) {
    modules.push_back((symbol->encoded_data[0][i / 8] >> (i % 8) & 1) != 0);
  }
  return modules;
}

}  // namespace awizo
