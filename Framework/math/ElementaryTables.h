#pragma once

#include "Framework/math/DoubleDouble.h"

// Written by tools/math/make_tables.py; the tests compute each value anew.
// clang-format off

namespace quorva::math {

constexpr int sine_steps = 64; ///< in a right angle

/// sin(i pi / 128).
constexpr DoubleDouble sines[sine_steps + 1] = {
    {0.0, 0.0},
    {0x1.92155f7a3667ep-6, -0x1.b1d63091a013p-64},
    {0x1.91f65f10dd814p-5, -0x1.912bd0d569a9p-61},
    {0x1.2d52092ce19f6p-4, -0x1.9a088a8bf6b2cp-59},
    {0x1.917a6bc29b42cp-4, -0x1.e2718d26ed688p-60},
    {0x1.f564e56a9730ep-4, 0x1.a2704729ae56dp-59},
    {0x1.2c8106e8e613ap-3, 0x1.13000a89a11ep-58},
    {0x1.5e214448b3fc6p-3, 0x1.531ff779ddac6p-57},
    {0x1.8f8b83c69a60bp-3, -0x1.26d19b9ff8d82p-57},
    {0x1.c0b826a7e4f63p-3, -0x1.af1439e521935p-62},
    {0x1.f19f97b215f1bp-3, -0x1.42deef11da2c4p-57},
    {0x1.111d262b1f677p-2, 0x1.824c20ab7aa9ap-56},
    {0x1.294062ed59f06p-2, -0x1.5d28da2c4612dp-56},
    {0x1.4135c94176601p-2, 0x1.0c97c4afa2518p-56},
    {0x1.58f9a75ab1fddp-2, -0x1.efdc0d58cf62p-62},
    {0x1.7088530fa459fp-2, -0x1.44b19e0864c5dp-56},
    {0x1.87de2a6aea963p-2, -0x1.72cedd3d5a61p-57},
    {0x1.9ef7943a8ed8ap-2, 0x1.6da81290bdbabp-57},
    {0x1.b5d1009e15ccp-2, 0x1.5b362cb974183p-57},
    {0x1.cc66e9931c45ep-2, 0x1.6850e59c37f8fp-58},
    {0x1.e2b5d3806f63bp-2, 0x1.e0d891d3c6841p-58},
    {0x1.f8ba4dbf89abap-2, -0x1.2ec1fc1b776b8p-60},
    {0x1.073879922ffeep-1, -0x1.a5a014347406cp-55},
    {0x1.11eb3541b4b23p-1, -0x1.ef23b69abe4f1p-55},
    {0x1.1c73b39ae68c8p-1, 0x1.b25dd267f66p-55},
    {0x1.26d054cdd12dfp-1, -0x1.5da743ef3770cp-55},
    {0x1.30ff7fce17035p-1, -0x1.efcc626f74a6fp-57},
    {0x1.3affa292050b9p-1, 0x1.e3e25e3954964p-56},
    {0x1.44cf325091dd6p-1, 0x1.8076a2cfdc6b3p-57},
    {0x1.4e6cabbe3e5e9p-1, 0x1.3c293edceb327p-57},
    {0x1.57d69348cecap-1, -0x1.75720992bfbb2p-55},
    {0x1.610b7551d2cdfp-1, -0x1.251b352ff2a37p-56},
    {0x1.6a09e667f3bcdp-1, -0x1.bdd3413b26456p-55},
    {0x1.72d0837efff96p-1, 0x1.0d4ef0f1d915cp-55},
    {0x1.7b5df226aafafp-1, -0x1.0f537acdf0ad7p-56},
    {0x1.83b0e0bff976ep-1, -0x1.6f420f8ea3475p-56},
    {0x1.8bc806b151741p-1, -0x1.2c5e12ed1336dp-55},
    {0x1.93a22499263fbp-1, 0x1.3d419a920df0bp-55},
    {0x1.9b3e047f38741p-1, -0x1.30ee286712474p-55},
    {0x1.a29a7a0462782p-1, -0x1.128bb015df175p-56},
    {0x1.a9b66290ea1a3p-1, 0x1.9f630e8b6dac8p-60},
    {0x1.b090a581502p-1, -0x1.926da300ffccep-55},
    {0x1.b728345196e3ep-1, -0x1.bc69f324e6d61p-55},
    {0x1.bd7c0ac6f952ap-1, -0x1.825a732ac700ap-55},
    {0x1.c38b2f180bdb1p-1, -0x1.6e0b1757c8d07p-56},
    {0x1.c954b213411f5p-1, -0x1.2fb761e946603p-58},
    {0x1.ced7af43cc773p-1, -0x1.e7b6bb5ab58aep-58},
    {0x1.d4134d14dc93ap-1, -0x1.4ef5295d25af2p-55},
    {0x1.d906bcf328d46p-1, 0x1.457e610231ac2p-56},
    {0x1.ddb13b6ccc23cp-1, 0x1.83c37c6107db3p-55},
    {0x1.e212104f686e5p-1, -0x1.014c76c126527p-55},
    {0x1.e6288ec48e112p-1, -0x1.16b56f2847754p-57},
    {0x1.e9f4156c62ddap-1, 0x1.760b1e2e3f81ep-55},
    {0x1.ed740e7684963p-1, 0x1.e82c791f59cc2p-56},
    {0x1.f0a7efb9230d7p-1, 0x1.52c7adc6b4989p-56},
    {0x1.f38f3ac64e589p-1, -0x1.d7bafb51f72e6p-56},
    {0x1.f6297cff75cbp-1, 0x1.562172a361fd3p-56},
    {0x1.f8764fa714ba9p-1, 0x1.ab256778ffcb6p-56},
    {0x1.fa7557f08a517p-1, -0x1.7a0a8ca13571fp-55},
    {0x1.fc26470e19fd3p-1, 0x1.1ec8668ecaceep-55},
    {0x1.fd88da3d12526p-1, -0x1.87df6378811c7p-55},
    {0x1.fe9cdad01883ap-1, 0x1.521ecd0c67e35p-57},
    {0x1.ff621e3796d7ep-1, -0x1.c57bc2e24aa15p-57},
    {0x1.ffd886084cd0dp-1, -0x1.1354d4556e4cbp-55},
    {0x1p0, 0.0},
};

/// pi / 128 in three pieces. The first two have 33 bits, so that their products with a whole
/// number below 2^20 are exact; the third is rounded, and the sum is off by less than 2^-125.
constexpr double step_pieces[] = {0x1.921fb544p-6, 0x1.0b4611a6p-40, 0x1.3198a2e037073p-75};
constexpr double steps_per_radian = 0x1.45f306dc9c883p5; ///< 128 / pi

constexpr int tangent_steps = 64; ///< from 0 to 1

/// atan(i / 64).
constexpr DoubleDouble arctangents[tangent_steps + 1] = {
    {0.0, 0.0},
    {0x1.fff555bbb729bp-7, -0x1.220c39d4dff5p-61},
    {0x1.ffd55bba97625p-6, -0x1.5ec431444912cp-60},
    {0x1.7fb818430da2ap-5, -0x1.86ef8f794f105p-63},
    {0x1.ff55bb72cfdeap-5, -0x1.c934d86d23f1dp-60},
    {0x1.3f59f0e7c559dp-4, 0x1.ac4ce285df847p-58},
    {0x1.7ee182602f10fp-4, -0x1.cfb654c0c3d98p-58},
    {0x1.be39ebe6f07c3p-4, 0x1.f7b8f29a05987p-58},
    {0x1.fd5ba9aac2f6ep-4, -0x1.cd37686760c17p-59},
    {0x1.1e1fafb043727p-3, -0x1.b485914dacf8cp-59},
    {0x1.3d6eee8c6626cp-3, 0x1.61a3b0ce9281bp-57},
    {0x1.5c9811e3ec26ap-3, -0x1.054ab2c010f3dp-58},
    {0x1.7b97b4bce5b02p-3, 0x1.347b0b4f881cap-58},
    {0x1.9a6a8e96c8626p-3, 0x1.cf601e7b4348ep-59},
    {0x1.b90d7529260a2p-3, 0x1.17b10d2e0e5abp-61},
    {0x1.d77d5df205736p-3, 0x1.c648d1534597ep-57},
    {0x1.f5b75f92c80ddp-3, 0x1.8ab6e3cf7afbdp-57},
    {0x1.09dc597d86362p-2, 0x1.62e47390cb865p-56},
    {0x1.18bf5a30bf178p-2, 0x1.30ca4748b1bf9p-57},
    {0x1.278372057ef46p-2, -0x1.077cdd36dfc81p-56},
    {0x1.362773707ebccp-2, -0x1.963a544b672d8p-57},
    {0x1.44aa436c2af0ap-2, -0x1.5d5e43c55b3bap-56},
    {0x1.530ad9951cd4ap-2, -0x1.2566480884082p-57},
    {0x1.614840309cfe2p-2, -0x1.a725715711fp-56},
    {0x1.6f61941e4def1p-2, -0x1.c63aae6f6e918p-56},
    {0x1.7d5604b63b3f7p-2, 0x1.69c885c2b249ap-56},
    {0x1.8b24d394a1b25p-2, 0x1.b6d0ba3748fa8p-56},
    {0x1.98cd5454d6b18p-2, 0x1.9e6c988fd0a77p-56},
    {0x1.a64eec3cc23fdp-2, -0x1.24dec1b50b7ffp-56},
    {0x1.b3a911da65c6cp-2, 0x1.ae187b1ca504p-56},
    {0x1.c0db4c94ec9fp-2, -0x1.cc1ce70934c34p-56},
    {0x1.cde53432c1351p-2, -0x1.a2cfa4418f1adp-56},
    {0x1.dac670561bb4fp-2, 0x1.a2b7f222f65e2p-56},
    {0x1.e77eb7f175a34p-2, 0x1.0e53dc1bf3435p-56},
    {0x1.f40dd0b541418p-2, -0x1.a3992dc382a23p-57},
    {0x1.0039c73c1a40cp-1, -0x1.b32c949c9d593p-55},
    {0x1.0657e94db30dp-1, -0x1.d5b495f6349e6p-56},
    {0x1.0c6145b5b43dap-1, 0x1.974fa13b5404fp-58},
    {0x1.1255d9bfbd2a9p-1, -0x1.2bdaee1c0ee35p-58},
    {0x1.1835a88be7c13p-1, 0x1.c621cec00c301p-55},
    {0x1.1e00babdefeb4p-1, -0x1.928df287a668fp-58},
    {0x1.23b71e2cc9e6ap-1, 0x1.c421c9f38224ep-57},
    {0x1.2958e59308e31p-1, -0x1.09e73b0c6c087p-56},
    {0x1.2ee628406cbcap-1, 0x1.c5d5e9ff0cf8dp-55},
    {0x1.345f01cce37bbp-1, 0x1.1021137c71102p-55},
    {0x1.39c391cd4171ap-1, -0x1.2304331d8bf46p-55},
    {0x1.3f13fb89e96f4p-1, 0x1.ecf8b492644fp-56},
    {0x1.445065b795b56p-1, -0x1.f76d0163f79c8p-56},
    {0x1.4978fa3269ee1p-1, 0x1.2419a87f2a458p-56},
    {0x1.4e8de5bb6ec04p-1, 0x1.4a33dbeb3796cp-55},
    {0x1.538f57b89061fp-1, -0x1.1bb74abda520cp-55},
    {0x1.587d81f732fbbp-1, -0x1.5e5c9d8c5a95p-56},
    {0x1.5d58987169b18p-1, 0x1.0028e4bc5e7cap-57},
    {0x1.6220d115d7b8ep-1, -0x1.2b785350ee8c1p-57},
    {0x1.66d663923e087p-1, -0x1.6ea6febe8bbbap-56},
    {0x1.6b798920b3d99p-1, -0x1.a80386188c50ep-55},
    {0x1.700a7c5784634p-1, -0x1.8c34d25aadef6p-56},
    {0x1.748978fba8e0fp-1, 0x1.7b2a6165884a1p-59},
    {0x1.78f6bbd5d315ep-1, 0x1.406a08980374p-55},
    {0x1.7d528289fa093p-1, 0x1.560821e2f3aa9p-55},
    {0x1.819d0b7158a4dp-1, -0x1.bf76229d3b917p-56},
    {0x1.85d69576cc2c5p-1, 0x1.6b66e7fc8b8c3p-57},
    {0x1.89ff5ff57f1f8p-1, -0x1.55b9a5e177a1bp-55},
    {0x1.8e17aa99cc05ep-1, -0x1.ec182ab042f61p-56},
    {0x1.921fb54442d18p-1, 0x1.1a62633145c07p-55},
};

constexpr DoubleDouble half_pi = {0x1.921fb54442d18p0, 0x1.1a62633145c07p-54};
constexpr DoubleDouble whole_pi = {0x1.921fb54442d18p1, 0x1.1a62633145c07p-53};

constexpr DoubleDouble minus_sixth = {-0x1.5555555555555p-3, -0x1.5555555555555p-57};
constexpr DoubleDouble minus_third = {-0x1.5555555555555p-2, -0x1.5555555555555p-56};

constexpr int two_over_pi_bits = 2048; ///< behind the point: enough for 2^1024 radians

/// 2 / pi, truncated.
constexpr char two_over_pi_digits[] = "0x"
    "a2f9836e4e441529fc2757d1f534ddc0db6295993c439041fe5163abdebbc561"
    "b7246e3a424dd2e006492eea09d1921cfe1deb1cb129a73ee88235f52ebb4484"
    "e99c7026b45f7e413991d639835339f49c845f8bbdf9283b1ff897ffde05980f"
    "ef2f118b5a0a6d1f6d367ecf27cb09b74f463f669e5fea2d7527bac7ebe5f17b"
    "3d0739f78a5292ea6bfb5fb11f8d5d0856033046fc7b6babf0cfbc209af4361d"
    "a9e391615ee61b086599855f14a068408dffd8804d73273106061556ca73a8c9"
    "60e27bc08c6b47c419c367cddce8092a8359c4768b961ca6ddaf44d15719053e"
    "a5ff07053f7e33e832c2de4f98327dbbc33d26ef6b1e5ef89f3a1f35caf27f1d";

} // namespace quorva::math

// clang-format on
