#pragma once

#include <openssl/ssl.h>

#include <memory>
#include <string>

#include "support/servers/raw_server.h"

namespace awizo::test {

/// A certificate that nobody but itself vouches for, with its key.
class SelfSigned {
 public:
  /// For a host in the form of the certificate's own names: "IP:127.0.0.1", "DNS:localhost".
  /// Valid from now for the given time, which may have passed.
  explicit SelfSigned(const std::string& host, long secondsValid = 3600);

  X509* certificate() const { return certificate_.get(); }
  EVP_PKEY* key() const { return key_.get(); }
  /// Writes the certificate to a file in the form in which trusted ones are kept.
  void save(const std::string& path) const;

 private:
  std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key_;
  std::unique_ptr<X509, decltype(&X509_free)> certificate_;
};

/// The same as the raw server, by TLS.
class TlsServer final : public RawServer {
 public:
  TlsServer(const SelfSigned& identity, std::string reply);
  ~TlsServer() override;

  std::string secureUrl(const std::string& host = "127.0.0.1") const;

 private:
  void talk(int connection) override;

  std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context_;
};

}  // namespace awizo::test
