#include "demo/posted_documents.h"

#include <array>
#include <cstdio>
#include <fstream>

#include "demo/xml_text.h"

namespace awizo::demo {

namespace {

std::string fileName(int number) {
  std::array<char, 40> name{};
  std::snprintf(name.data(), name.size(), "despatch-advice-%04d.xml", number);
  return name.data();
}

}  // namespace

std::string PostedDocuments::accept(std::string_view document) {
  if (document.empty()) return "Документ не принят: он пуст.";
  try {
    const XmlDocument parsed(document);
  } catch (const XmlError& error) {
    return "Документ не принят: ошибка XML в строке " + std::to_string(error.line) + ".";
  }
  return store(document) ? "OK" : "Документ не принят: его не удалось сохранить.";
}

bool PostedDocuments::store(std::string_view document) {
  const std::lock_guard lock(mutex_);
  std::error_code error;
  std::filesystem::create_directories(folder_, error);
  std::filesystem::path path;
  do {
    path = folder_ / fileName(++lastNumber_);
  } while (std::filesystem::exists(path, error));
  std::ofstream file(path, std::ios::binary);
  file.write(document.data(), static_cast<std::streamsize>(document.size()));
  file.close();
  if (file) return true;
  std::filesystem::remove(path, error);
  return false;
}

}  // namespace awizo::demo
