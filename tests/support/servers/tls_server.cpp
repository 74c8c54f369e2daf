#include "support/servers/tls_server.h"

#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <array>
#include <csignal>
#include <cstdio>

namespace awizo::test {
namespace {

void addExtension(X509* certificate, int kind, const std::string& value) {
  X509_EXTENSION* extension = X509V3_EXT_conf_nid(nullptr, nullptr, kind, value.c_str());
  X509_add_ext(certificate, extension, -1);
  X509_EXTENSION_free(extension);
}

}  // namespace

SelfSigned::SelfSigned(const std::string& host, long secondsValid)
    : key_(EVP_EC_gen("P-256"), &EVP_PKEY_free), certificate_(X509_new(), &X509_free) {
  X509* certificate = certificate_.get();
  X509_set_version(certificate, 2);
  ASN1_INTEGER_set(X509_get_serialNumber(certificate), 1);
  X509_gmtime_adj(X509_getm_notBefore(certificate), secondsValid < 0 ? 2 * secondsValid : 0);
  X509_gmtime_adj(X509_getm_notAfter(certificate), secondsValid);
  X509_set_pubkey(certificate, key_.get());
  X509_NAME* name = X509_get_subject_name(certificate);
  const auto* common = reinterpret_cast<const unsigned char*>("test");
  X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, common, -1, -1, 0);
  X509_set_issuer_name(certificate, name);
  addExtension(certificate, NID_subject_alt_name, host);
  addExtension(certificate, NID_basic_constraints, "CA:TRUE");
  X509_sign(certificate, key_.get(), EVP_sha256());
}

void SelfSigned::save(const std::string& path) const {
  const std::unique_ptr<FILE, decltype(&std::fclose)> file(std::fopen(path.c_str(), "w"),
                                                           &std::fclose);
  PEM_write_X509(file.get(), certificate_.get());
}

TlsServer::TlsServer(const SelfSigned& identity, std::string reply)
    : RawServer(std::move(reply)), context_(SSL_CTX_new(TLS_server_method()), &SSL_CTX_free) {
  // A client that hangs up must not end the test.
  std::signal(SIGPIPE, SIG_IGN);
  SSL_CTX_use_certificate(context_.get(), identity.certificate());
  SSL_CTX_use_PrivateKey(context_.get(), identity.key());
}

TlsServer::~TlsServer() { stop(); }

std::string TlsServer::secureUrl(const std::string& host) const {
  return "https://" + host + ":" + std::to_string(port()) + "/";
}

void TlsServer::talk(int connection) {
  const std::unique_ptr<SSL, decltype(&SSL_free)> session(SSL_new(context_.get()), &SSL_free);
  SSL_set_fd(session.get(), connection);
  if (SSL_accept(session.get()) != 1) return;
  const auto read = [&] {
    std::array<char, 4096> buffer;
    const int count = SSL_read(session.get(), buffer.data(), static_cast<int>(buffer.size()));
    return std::string(buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
  };
  const auto write = [&](const std::string& bytes) {
    SSL_write(session.get(), bytes.data(), static_cast<int>(bytes.size()));
    SSL_shutdown(session.get());
  };
  serve({read, write});
}

}  // namespace awizo::test
