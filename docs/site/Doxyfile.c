# Nothing of the interface for C is without a description: scripts/docs runs this before it builds the site.
@INCLUDE               = docs/site/Doxyfile
INPUT                  = include/kostyle
FILE_PATTERNS          = *.h
WARN_IF_UNDOCUMENTED   = YES
GENERATE_HTML          = NO
GENERATE_XML           = YES
