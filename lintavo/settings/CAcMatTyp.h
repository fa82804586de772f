// The display part of a material: plain records that hosts hand on to their
// graphics as they stand.
#pragma once

/// A colour of three shares; 0 to 1 for shading, 0 to 255 for plane drawings.
struct COLOR_RGB {
  float fRot = 0.0F;
  float fGruen = 0.0F;
  float fBlau = 0.0F;
};

/// Bits of `CAcMatTyp::iFlags`.
enum eMaterialFlags : unsigned int {
  eMaterialTextur = 1,       ///< the material has a texture
  eMaterialBeidseitig = 16,  ///< both sides of a face are shown
};

/// How a material looks. The first 64 bytes, all but the colour of plane
/// drawings, are compared byte by byte (`CAcMatEntry::operator==`), so the order
/// and the sizes of the fields are fixed.
struct CAcMatTyp {
  COLOR_RGB Diffus = {1.0F, 1.0F, 1.0F};
  COLOR_RGB Spiegel = {1.0F, 1.0F, 1.0F};  ///< specular colour
  float fAlpha = 0.0F;
  float fAmbient = 0.5F;
  float fDiffus = 0.4F;
  float fSpiegel = 1.0F;   ///< specular coefficient
  float fExponent = 3.0F;  ///< specular exponent
  int iReserve[4] = {0, 0, 0, 0};
  unsigned int iFlags = 0;  ///< bits of `eMaterialFlags`
  COLOR_RGB Rgb2d;          ///< colour of plane drawings, whole numbers 0 to 255
};
