#pragma once

/// What `Form_EC` checks before it saves and before it goes on. The first failure shows its message and ends
/// the operation.
namespace varenta {

bool podeSalvarEnsaio();

/// Before the overlap of the measured profile.
bool podeSobrepor();

/// Before the radial profile. An empty flow passes: it can be estimated.
bool podeGerarPerfil();

} // namespace varenta
