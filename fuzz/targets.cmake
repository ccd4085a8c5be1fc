# One line per fuzz target: lumidate_fuzz_target(<file name in targets/> DEPS <libraries>)
# whole-files: (names of the targets that take whole photo files; their corpus also starts from the real camera files)
lumidate_fuzz_target(date_text DEPS lumidate_datetime)
lumidate_fuzz_target(offset_text DEPS lumidate_datetime)
