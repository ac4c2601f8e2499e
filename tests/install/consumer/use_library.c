/*
 * A C program of a library user: one BCH transport block (hexadecimal, first argument)
 * through umts_sib_decoder, then the PLMN of the MIB that it carried.
 * Prints "mib: mcc 262 mnc 01 value tag 3" (for the sample cell) and exits 0, or says why not.
 */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "umts_sib_decoder.h"

static int hex_digit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

int main(int argc, char** argv) {
  uint8_t block[64];
  size_t n = 0, i;
  umts_sib_set* set;
  uint8_t ok;
  if (argc != 2 || strlen(argv[1]) % 2 != 0 || strlen(argv[1]) / 2 > sizeof block) {
    fprintf(stderr, "usage: use_library HEX-OF-A-TRANSPORT-BLOCK\n");
    return 2;
  }
  for (i = 0; argv[1][i] != '\0'; i += 2) {
    const int hi = hex_digit(argv[1][i]), lo = hex_digit(argv[1][i + 1]);
    if (hi < 0 || lo < 0) {
      fprintf(stderr, "use_library: bad hex digit\n");
      return 2;
    }
    block[n++] = (uint8_t)(hi << 4 | lo);
  }

  set = calloc(1, sizeof *set); /* large: never on the stack */
  if (set == NULL) return 2;
  ok = umts_sib_decoder(block, set, (uint32_t)n);
  fflush(stdout); /* the library's ASN.1 text comes first */
  if (!ok || (set->presence_bitmask & (1u << umts_sib_mib)) == 0 || set->mib.plmn_Type.choice_tag != 1) {
    printf("no MIB converted (status %u, presence 0x%x)\n", ok, set->presence_bitmask);
    free(set);
    return 1;
  }
  {
    const umts_plmn_identity* plmn = &set->mib.plmn_Type.u.gsm_MAP;
    printf("mib: mcc ");
    for (i = 0; i < plmn->mcc.count && i < 3; i++) printf("%u", plmn->mcc.digits[i]);
    printf(" mnc ");
    for (i = 0; i < plmn->mnc.count && i < 3; i++) printf("%u", plmn->mnc.digits[i]);
    printf(" value tag %u\n", set->mib.mib_ValueTag);
  }
  free(set);
  return 0;
}
