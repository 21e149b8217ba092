/* ==== Resources as properties ==== */

/* The calls of a form designer. They work on the text of an RC file and make no window. rcFile is a full path
 * with a drive letter, or a bare file name, which means a file of the current directory. Each of them but
 * ResourceTypelist leaves a message in error, cut to errorSize bytes, or an empty text on success; without a
 * buffer for it nothing is done. An argument called ignored has no meaning; pass 0.
 *
 * A property array is 256 rows of one size: 1025 bytes hold every row that can be written back. A row holds
 * the property list of one object, lines KEY=value in the order of the keys with a line feed behind each; the
 * rows behind the last object are empty. Row 0 is the window, or the header of a menu. */

/* Gives the schema of a type of object such as "Pushbutton": a line KEY=TYPE for each of its properties.
 * buffer is cleared whole, and stays empty for a name without a schema; what doesn't fit is cut. 1025 bytes
 * hold any schema. typeName and buffer may be null. */
BRELT_API(void) ResourceTypelist(const char* typeName, char* buffer, int32_t size);

/* Reads a DIALOG or MENU into a property array; rowCount must be 256, rowSize is in bytes. A row too small is
 * cut without a message. After a failure all rows are zero, unless they couldn't be reached. */
BRELT_API(void)
ResourceRead(uintptr_t ignored, const char* rcFile, const char* resource, char** rows, int32_t rowCount,
             int32_t rowSize, char* error, int32_t errorSize);

/* Writes a window with its controls from dialogRows and, if it names a MENU, that from menuRows, with an ICON
 * resource for each icon control and a #define for each name, in the place of what the file had of the window
 * before. Both arrays must be given with 256 rows; a window without a menu has empty menu rows. Of each row
 * the first 1024 characters count; it must be terminated, without control characters other than the line
 * feed, and zero from the terminator on. The file is made if need be. */
BRELT_API(void)
ResourceWrite(uintptr_t ignored, char** dialogRows, int32_t dialogRowCount, int32_t dialogRowSize,
              char** menuRows, int32_t menuRowCount, int32_t menuRowSize, const char* rcFile, char* error,
              int32_t errorSize);

/* Deletes the resource of a name, whatever its type. A DIALOG takes along its MENU, the ICONs of its icon
 * controls and the #define lines that nothing uses any more. A file or a resource that doesn't exist is no
 * failure. */
BRELT_API(void) ResourceDelete(const char* rcFile, const char* resource, char* error, int32_t errorSize);

/* Gives a resource another name, which must be an identifier that no resource has. What refers to it isn't
 * changed. */
BRELT_API(void)
ResourceRename(const char* rcFile, const char* oldName, const char* newName, char* error, int32_t errorSize);

/* Writes a resource from its RC text, whose first two words are its name and type: in the place of the
 * resource of that name, or at the end of the file, which is made if need be. Every line must end in a line
 * feed. */
BRELT_API(void)
ResourceWriteText(uintptr_t ignored, const char* rcFile, const char* text, char* error, int32_t errorSize);

/* Looks into a file. type "*" or a keyword such as "Dialog", or several with a line feed behind each; with
 * name "*" output gets a line NAME,TYPE for each resource, otherwise the text of the first of that name. type
 * "Controls" gives a line "name value" for each symbol of the file, or with the name of a DIALOG for each
 * that it and its MENU use; flags are 1 to sort by name, 2 by value, 16 to number anew where two have one
 * value, 32 to add " uses". The output must be at least one byte larger than the text with its terminator. */
BRELT_API(void)
ResourceInfo(const char* rcFile, const char* type, const char* name, int32_t flags, char* output,
             int32_t outputSize, char* error, int32_t errorSize);
