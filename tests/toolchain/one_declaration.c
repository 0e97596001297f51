/* A translation unit must hold one, also behind a header that only defines macros. */
typedef int OneDeclaration;
