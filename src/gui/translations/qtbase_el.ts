<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR" sourcelanguage="en">
<context>
    <name>QPageSize</name>
    <message>
        <source>A0</source>
        <translation>A0</translation>
    </message>
    <message>
        <source>A1</source>
        <translation>A1</translation>
    </message>
    <message>
        <source>A2</source>
        <translation>A2</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>A6</source>
        <translation>A6</translation>
    </message>
    <message>
        <source>A7</source>
        <translation>A7</translation>
    </message>
    <message>
        <source>A8</source>
        <translation>A8</translation>
    </message>
    <message>
        <source>A9</source>
        <translation>A9</translation>
    </message>
    <message>
        <source>B0</source>
        <translation>B0</translation>
    </message>
    <message>
        <source>B1</source>
        <translation>B1</translation>
    </message>
    <message>
        <source>B2</source>
        <translation>B2</translation>
    </message>
    <message>
        <source>B3</source>
        <translation>B3</translation>
    </message>
    <message>
        <source>B4</source>
        <translation>B4</translation>
    </message>
    <message>
        <source>B5</source>
        <translation>B5</translation>
    </message>
    <message>
        <source>B6</source>
        <translation>B6</translation>
    </message>
    <message>
        <source>B7</source>
        <translation>B7</translation>
    </message>
    <message>
        <source>B8</source>
        <translation>B8</translation>
    </message>
    <message>
        <source>B9</source>
        <translation>B9</translation>
    </message>
    <message>
        <source>A10</source>
        <translation>A10</translation>
    </message>
    <message>
        <source>B10</source>
        <translation>B10</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Letter / ANSI A</source>
        <translation>Letter / ANSI A</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legal</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Φάκελος Monarch</translation>
    </message>
    <message>
        <source>Architect A</source>
        <translation>Αρχιτεκτονικό A</translation>
    </message>
    <message>
        <source>Architect B</source>
        <translation>Αρχιτεκτονικό B</translation>
    </message>
    <message>
        <source>Architect C</source>
        <translation>Αρχιτεκτονικό C</translation>
    </message>
    <message>
        <source>Architect D</source>
        <translation>Αρχιτεκτονικό D</translation>
    </message>
    <message>
        <source>Architect E</source>
        <translation>Αρχιτεκτονικό E</translation>
    </message>
    <message>
        <source>Letter Extra</source>
        <translation>Letter Extra</translation>
    </message>
    <message>
        <source>Letter Small</source>
        <translation>Letter μικρό</translation>
    </message>
    <message>
        <source>Envelope You 4</source>
        <translation>Φάκελος You 4</translation>
    </message>
    <message>
        <source>Envelope US 10</source>
        <translation>Φάκελος ΗΠΑ 10</translation>
    </message>
    <message>
        <source>Envelope US 11</source>
        <translation>Φάκελος ΗΠΑ 11</translation>
    </message>
    <message>
        <source>Envelope US 12</source>
        <translation>Φάκελος ΗΠΑ 12</translation>
    </message>
    <message>
        <source>Envelope US 14</source>
        <translation>Φάκελος ΗΠΑ 14</translation>
    </message>
    <message>
        <source>Envelope PRC 1</source>
        <translation>Φάκελος PRC 1</translation>
    </message>
    <message>
        <source>Envelope PRC 2</source>
        <translation>Φάκελος PRC 2</translation>
    </message>
    <message>
        <source>Envelope PRC 3</source>
        <translation>Φάκελος PRC 3</translation>
    </message>
    <message>
        <source>Envelope PRC 4</source>
        <translation>Φάκελος PRC 4</translation>
    </message>
    <message>
        <source>Envelope PRC 5</source>
        <translation>Φάκελος PRC 5</translation>
    </message>
    <message>
        <source>Envelope PRC 6</source>
        <translation>Φάκελος PRC 6</translation>
    </message>
    <message>
        <source>Envelope PRC 7</source>
        <translation>Φάκελος PRC 7</translation>
    </message>
    <message>
        <source>Envelope PRC 8</source>
        <translation>Φάκελος PRC 8</translation>
    </message>
    <message>
        <source>Envelope PRC 9</source>
        <translation>Φάκελος PRC 9</translation>
    </message>
    <message>
        <source>Envelope C65</source>
        <translation>Φάκελος C65</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>Φάκελος DL</translation>
    </message>
    <message>
        <source>Envelope B4</source>
        <translation>Φάκελος B4</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>Φάκελος B5</translation>
    </message>
    <message>
        <source>Envelope B6</source>
        <translation>Φάκελος B6</translation>
    </message>
    <message>
        <source>Envelope C0</source>
        <translation>Φάκελος C0</translation>
    </message>
    <message>
        <source>Envelope C1</source>
        <translation>Φάκελος C1</translation>
    </message>
    <message>
        <source>Envelope C2</source>
        <translation>Φάκελος C2</translation>
    </message>
    <message>
        <source>Envelope C3</source>
        <translation>Φάκελος C3</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>Φάκελος C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>Φάκελος C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>Φάκελος C6</translation>
    </message>
    <message>
        <source>Envelope C7</source>
        <translation>Φάκελος C7</translation>
    </message>
    <message>
        <source>Executive (7.5 x 10 in)</source>
        <translation>Executive (7,5 × 10″)</translation>
    </message>
    <message>
        <source>ANSI C</source>
        <translation>ANSI C</translation>
    </message>
    <message>
        <source>ANSI D</source>
        <translation>ANSI D</translation>
    </message>
    <message>
        <source>ANSI E</source>
        <translation>ANSI E</translation>
    </message>
    <message>
        <source>A4 Plus</source>
        <translation>A4 Plus</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Προσαρμοσμένο</translation>
    </message>
    <message>
        <source>JIS B0</source>
        <translation>JIS B0</translation>
    </message>
    <message>
        <source>JIS B1</source>
        <translation>JIS B1</translation>
    </message>
    <message>
        <source>JIS B2</source>
        <translation>JIS B2</translation>
    </message>
    <message>
        <source>JIS B3</source>
        <translation>JIS B3</translation>
    </message>
    <message>
        <source>JIS B4</source>
        <translation>JIS B4</translation>
    </message>
    <message>
        <source>JIS B5</source>
        <translation>JIS B5</translation>
    </message>
    <message>
        <source>JIS B6</source>
        <translation>JIS B6</translation>
    </message>
    <message>
        <source>JIS B7</source>
        <translation>JIS B7</translation>
    </message>
    <message>
        <source>JIS B8</source>
        <translation>JIS B8</translation>
    </message>
    <message>
        <source>JIS B9</source>
        <translation>JIS B9</translation>
    </message>
    <message>
        <source>A3 Extra</source>
        <translation>A3 Extra</translation>
    </message>
    <message>
        <source>PRC 16K</source>
        <translation>PRC 16K</translation>
    </message>
    <message>
        <source>PRC 32K</source>
        <translation>PRC 32K</translation>
    </message>
    <message>
        <source>Quarto</source>
        <translation>Quarto</translation>
    </message>
    <message>
        <source>PRC 32K Big</source>
        <translation>PRC 32K μεγάλο</translation>
    </message>
    <message>
        <source>A4 Extra</source>
        <translation>A4 Extra</translation>
    </message>
    <message>
        <source>A4 Small</source>
        <translation>A4 μικρό</translation>
    </message>
    <message>
        <source>Executive (7.25 x 10.5 in)</source>
        <translation>Executive (7,25 × 10,5″)</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Καρτ ποστάλ</translation>
    </message>
    <message>
        <source>Tabloid / ANSI B</source>
        <translation>Tabloid / ANSI B</translation>
    </message>
    <message>
        <source>A5 Extra</source>
        <translation>A5 Extra</translation>
    </message>
    <message>
        <source>B5 Extra</source>
        <translation>B5 Extra</translation>
    </message>
    <message>
        <source>Envelope Invite</source>
        <translation>Φάκελος πρόσκλησης</translation>
    </message>
    <message>
        <source>Envelope Chou 3</source>
        <translation>Φάκελος Chou 3</translation>
    </message>
    <message>
        <source>Envelope Chou 4</source>
        <translation>Φάκελος Chou 4</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Statement</translation>
    </message>
    <message>
        <source>Fan-fold German (8.5 x 12 in)</source>
        <translation>Συνεχές χαρτί γερμανικό (8,5 × 12″)</translation>
    </message>
    <message>
        <source>Envelope PRC 10</source>
        <translation>Φάκελος PRC 10</translation>
    </message>
    <message>
        <source>Envelope Kaku 2</source>
        <translation>Φάκελος Kaku 2</translation>
    </message>
    <message>
        <source>Envelope Kaku 3</source>
        <translation>Φάκελος Kaku 3</translation>
    </message>
    <message>
        <source>Envelope US 9</source>
        <translation>Φάκελος ΗΠΑ 9</translation>
    </message>
    <message>
        <source>%1 x %2 in</source>
        <translation>%1 × %2″</translation>
    </message>
    <message>
        <source>Super A</source>
        <translation>Super A</translation>
    </message>
    <message>
        <source>Super B</source>
        <translation>Super B</translation>
    </message>
    <message>
        <source>Fan-fold US (14.875 x 11 in)</source>
        <translation>Συνεχές χαρτί ΗΠΑ (14,875 × 11″)</translation>
    </message>
    <message>
        <source>Fan-fold German Legal (8.5 x 13 in)</source>
        <translation>Συνεχές χαρτί γερμανικό Legal (8,5 × 13″)</translation>
    </message>
    <message>
        <source>Custom (%1in x %2in)</source>
        <translation>Προσαρμοσμένο (%1″ × %2″)</translation>
    </message>
    <message>
        <source>Custom (%1mm x %2mm)</source>
        <translation>Προσαρμοσμένο (%1 mm × %2 mm)</translation>
    </message>
    <message>
        <source>Custom (%1CC x %2CC)</source>
        <translation>Προσαρμοσμένο (%1 CC × %2 CC)</translation>
    </message>
    <message>
        <source>Custom (%1DD x %2DD)</source>
        <translation>Προσαρμοσμένο (%1 DD × %2 DD)</translation>
    </message>
    <message>
        <source>Custom (%1pc x %2pc)</source>
        <translation>Προσαρμοσμένο (%1 pc × %2 pc)</translation>
    </message>
    <message>
        <source>Custom (%1pt x %2pt)</source>
        <translation>Προσαρμοσμένο (%1 pt × %2 pt)</translation>
    </message>
    <message>
        <source>Letter Plus</source>
        <translation>Letter Plus</translation>
    </message>
    <message>
        <source>Tabloid Extra</source>
        <translation>Tabloid Extra</translation>
    </message>
    <message>
        <source>Envelope Italian</source>
        <translation>Ιταλικός φάκελος</translation>
    </message>
    <message>
        <source>Double Postcard</source>
        <translation>Διπλή καρτ ποστάλ</translation>
    </message>
    <message>
        <source>Legal Extra</source>
        <translation>Legal Extra</translation>
    </message>
    <message>
        <source>Folio (8.27 x 13 in)</source>
        <translation>Folio (8,27 × 13″)</translation>
    </message>
    <message>
        <source>Ledger / ANSI B</source>
        <translation>Ledger / ANSI B</translation>
    </message>
    <message>
        <source>JIS B10</source>
        <translation>JIS B10</translation>
    </message>
    <message>
        <source>Envelope Personal</source>
        <translation>Προσωπικός φάκελος</translation>
    </message>
</context>
<context>
    <name>QPageSetupWidget</name>
    <message>
        <source>CC</source>
        <translation> CC</translation>
    </message>
    <message>
        <source>DD</source>
        <translation> DD</translation>
    </message>
    <message>
        <source>in</source>
        <translation>″</translation>
    </message>
    <message>
        <source>mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>P̸</source>
        <translation> P̸</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Φόρμα</translation>
    </message>
    <message>
        <source>bottom margin</source>
        <translation>Κάτω περιθώριο</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Χαρτί</translation>
    </message>
    <message>
        <source>Paper source:</source>
        <translation>Τροφοδοσία χαρτιού:</translation>
    </message>
    <message>
        <source>right margin</source>
        <translation>Δεξί περιθώριο</translation>
    </message>
    <message>
        <source>Pica (P̸)</source>
        <translation>Πίκα (P̸)</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Περιθώρια</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Προσαρμοσμένο</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Οριζόντιος</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Διάταξη σελίδων</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Πλάτος:</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Προσανατολισμός</translation>
    </message>
    <message>
        <source>Didot (DD)</source>
        <translation>Ντιντό (DD)</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Κατακόρυφος</translation>
    </message>
    <message>
        <source>Page order:</source>
        <translation>Σειρά σελίδων:</translation>
    </message>
    <message>
        <source>top margin</source>
        <translation>Επάνω περιθώριο</translation>
    </message>
    <message>
        <source>left margin</source>
        <translation>Αριστερό περιθώριο</translation>
    </message>
    <message>
        <source>Page size:</source>
        <translation>Μέγεθος χαρτιού:</translation>
    </message>
    <message>
        <source>Cicero (CC)</source>
        <translation>Κικέρο (CC)</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Ανεστραμμένος κατακόρυφος</translation>
    </message>
    <message>
        <source>Millimeters (mm)</source>
        <translation>Χιλιοστά (mm)</translation>
    </message>
    <message>
        <source>Points (pt)</source>
        <translation>Στιγμές (pt)</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>Σελίδες ανά φύλλο:</translation>
    </message>
    <message>
        <source>Inches (in)</source>
        <translation>Ίντσες (″)</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Ανεστραμμένος οριζόντιος</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Ύψος:</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Όχι</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ναι</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Βοήθεια</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Αποθήκευση</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Διακοπή</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Εφαρμογή</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Επαναφορά</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Επανάληψη</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Επαναφορά προεπιλογών</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Παράβλεψη</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Ό&amp;χι σε όλα</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Αποθήκευση όλων</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Απόρριψη</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ναι σε ό&amp;λα</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>to</source>
        <translation>έως</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Όχι</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Φόρμα</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Έγχρωμη</translation>
    </message>
    <message>
        <source>Print all</source>
        <translation>Όλες οι σελίδες</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Σελίδες</translation>
    </message>
    <message>
        <source>Current Page</source>
        <translation>Τρέχουσα σελίδα</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Επιλογή</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Αντίγραφα</translation>
    </message>
    <message>
        <source>Print range</source>
        <translation>Εύρος σελίδων</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Χρώμα</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Επιλογές</translation>
    </message>
    <message>
        <source>Output Settings</source>
        <translation>Ρυθμίσεις εκτύπωσης</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Αντίστροφη σειρά</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Αποχρώσεις του γκρι</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Σελιδοποίηση</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Αντίγραφα:</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Βιβλιοδεσία στη μικρή πλευρά</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Γράψτε σελίδες ή περιοχές σελίδων χωρισμένες με κόμμα. Μια περιοχή γράφεται με δύο αριθμούς και παύλα ανάμεσά τους. Π.χ. το 3,5-7,9 τυπώνει τις σελίδες 3, 5, 6, 7 και 9.</translation>
    </message>
    <message>
        <source>Pages from</source>
        <translation>Σελίδες από</translation>
    </message>
    <message>
        <source>Double Sided Printing</source>
        <translation>Εκτύπωση διπλής όψης</translation>
    </message>
    <message>
        <source>Page Set:</source>
        <translation>Σελίδες προς εκτύπωση:</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Βιβλιοδεσία στη μεγάλη πλευρά</translation>
    </message>
</context>
<context>
    <name>QPrintPreviewDialog</name>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Προεπισκόπηση εκτύπωσης</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Εκτύπωση</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Προσαρμογή στη σελίδα</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Μεγέθυνση</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Οριζόντιος προσανατολισμός</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Σμίκρυνση</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Προσαρμογή στο πλάτος</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Κατακόρυφος προσανατολισμός</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Διαμόρφωση σελίδας</translation>
    </message>
    <message>
        <source>Page setup</source>
        <translation>Διαμόρφωση σελίδας</translation>
    </message>
    <message>
        <source>Show overview of all pages</source>
        <translation>Επισκόπηση όλων των σελίδων</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Πρώτη σελίδα</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Τελευταία σελίδα</translation>
    </message>
    <message>
        <source>Show single page</source>
        <translation>Εμφάνιση μίας σελίδας</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Εξαγωγή σε PDF</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Προηγούμενη σελίδα</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Επόμενη σελίδα</translation>
    </message>
    <message>
        <source>Show facing pages</source>
        <translation>Εμφάνιση αντικριστών σελίδων</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Αποθήκευση</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Κλείσιμο</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Κλείσιμο χωρίς αποθήκευση</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Άκυρο</translation>
    </message>
</context>
<context>
    <name>QPrintWidget</name>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Φόρμα</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Τύπος:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>Ό&amp;νομα:</translation>
    </message>
    <message>
        <source>Output &amp;file:</source>
        <translation>&amp;Αρχείο εξόδου:</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>Ι&amp;διότητες</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Προεπισκόπηση</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Εκτυπωτής</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Θέση:</translation>
    </message>
</context>
<context>
    <name>QCupsJobWidget</name>
    <message>
        <source>Job</source>
        <translation>Εργασία</translation>
    </message>
    <message>
        <source>End:</source>
        <translation>Τέλος:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Καμία</translation>
    </message>
    <message>
        <source>Banner Pages</source>
        <translation>Σελίδες διαχωρισμού</translation>
    </message>
    <message>
        <source>Night (18:00 to 05:59)</source>
        <translation>Νύχτα (18:00 έως 05:59)</translation>
    </message>
    <message>
        <source>Specific Time</source>
        <translation>Συγκεκριμένη ώρα</translation>
    </message>
    <message>
        <source>Billing information:</source>
        <translation>Στοιχεία χρέωσης:</translation>
    </message>
    <message>
        <source>Scheduled printing:</source>
        <translation>Προγραμματισμένη εκτύπωση:</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Απόρρητη</translation>
    </message>
    <message>
        <source>Top Secret</source>
        <translation>Άκρως απόρρητη</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Αρχή:</translation>
    </message>
    <message>
        <source>Day (06:00 to 17:59)</source>
        <translation>Ημέρα (06:00 έως 17:59)</translation>
    </message>
    <message>
        <source>Second Shift (16:00 to 23:59)</source>
        <translation>Δεύτερη βάρδια (16:00 έως 23:59)</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>Έλεγχος εργασίας</translation>
    </message>
    <message>
        <source>Weekend (Saturday to Sunday)</source>
        <translation>Σαββατοκύριακο (Σάββατο έως Κυριακή)</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Τυπική</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Διαβαθμισμένη</translation>
    </message>
    <message>
        <source>Third Shift (00:00 to 07:59)</source>
        <translation>Τρίτη βάρδια (00:00 έως 07:59)</translation>
    </message>
    <message>
        <source>Hold Indefinitely</source>
        <translation>Αναμονή επ’ αόριστον</translation>
    </message>
    <message>
        <source>Print Immediately</source>
        <translation>Άμεση εκτύπωση</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Εμπιστευτική</translation>
    </message>
    <message>
        <source>Job priority:</source>
        <translation>Προτεραιότητα εργασίας:</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Αδιαβάθμητη</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Top</source>
        <translation>Αρχή</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Κύλιση προς τα κάτω</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Κύλιση ως εδώ</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Κύλιση προς τα αριστερά</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Μία σελίδα πάνω</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Μία σελίδα δεξιά</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Κύλιση προς τα πάνω</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Κύλιση προς τα δεξιά</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Αριστερό άκρο</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Μία σελίδα κάτω</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Μία σελίδα αριστερά</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Δεξί άκρο</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Άνοιγμα</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Αποθήκευση</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Αρχεία</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Εμφάνιση: </translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>Το «%1» προστατεύεται από εγγραφή.
Θέλετε να διαγραφεί παρ’ όλα αυτά;</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Θέλετε σίγουρα να διαγραφεί το «%1»;</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Θέσεις και σελιδοδείκτες</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Όνομα αρχείου:</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Νέος φάκελος</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Γονικός φάκελος</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Νέος φάκελος</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Αφαίρεση</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Αναζήτηση σε:</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Δημιουργία νέου φακέλου</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Αρχεία τύπου:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Εύρεση φακέλου</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Εμφάνιση &amp;κρυφών αρχείων</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Αποθήκευση ως</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Ο φάκελος δεν βρέθηκε.
Ελέγξτε ότι το όνομα του φακέλου είναι σωστό.</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Πλευρική στήλη</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Προβολή λίστας</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Επιλογή</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Διαγραφή</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Όλα τα αρχεία (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Όλα τα αρχεία (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Φάκελοι</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Μετονομασία</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Δεν ήταν δυνατή η διαγραφή του φακέλου.</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Φάκελος:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>Το %1 υπάρχει ήδη.
Θέλετε να αντικατασταθεί;</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Εμπρός</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Μετάβαση εμπρός</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Μετάβαση στον γονικό φάκελο</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Πρόσφατες θέσεις</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Μετάβαση πίσω</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Προβολή λεπτομερειών</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Δημιουργία νέου φακέλου</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Λεπτομέρειες</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Το αρχείο δεν βρέθηκε.
Ελέγξτε ότι το όνομα του αρχείου είναι σωστό.</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Προβολή λίστας</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Απο&amp;κοπή</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Αντι&amp;γραφή</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ακύ&amp;ρωση αναίρεσης</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Αναίρεση</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Επικόλληση</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Απο&amp;κοπή</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Αντι&amp;γραφή</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ακύ&amp;ρωση αναίρεσης</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Αναίρεση</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Επικόλληση</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Αντιγραφή θέσης &amp;συνδέσμου</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>File</source>
        <translation>Αρχείο</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Ψευδώνυμο</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Μονάδα δίσκου</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Φάκελος αρχείων</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Φάκελος</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Άγνωστο</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Συντόμευση</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Form</source>
        <translation>Φόρμα</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Σελίδα</translation>
    </message>
    <message>
        <source>There are conflicts in some options. Please fix them.</source>
        <translation>Ορισμένες ρυθμίσεις αντικρούονται. Διορθώστε τες.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Για προχωρημένους</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Kind</source>
        <translation>Είδος</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Όνομα</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Μέγεθος</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>Τύπος</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Ο υπολογιστής μου</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Υπολογιστής</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Τροποποίηση</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>True</source>
        <translation>Αληθές</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Ψευδές</translation>
    </message>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Ανοίγει τη λίστα επιλογών</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>Even Pages</source>
        <translation>Ζυγές σελίδες</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Εκτύπωση</translation>
    </message>
    <message>
        <source>&amp;Options &lt;&lt;</source>
        <translation>Ε&amp;πιλογές &lt;&lt;</translation>
    </message>
    <message>
        <source>&amp;Options &gt;&gt;</source>
        <translation>Ε&amp;πιλογές &gt;&gt;</translation>
    </message>
    <message>
        <source>Left to Right, Top to Bottom</source>
        <translation>Από αριστερά προς τα δεξιά, από πάνω προς τα κάτω</translation>
    </message>
    <message>
        <source>Right to Left, Bottom to Top</source>
        <translation>Από δεξιά προς τα αριστερά, από κάτω προς τα πάνω</translation>
    </message>
    <message>
        <source>Write PDF file</source>
        <translation>Εγγραφή αρχείου PDF</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Εκτύπωση</translation>
    </message>
    <message>
        <source>1 (1x1)</source>
        <translation>1 (1×1)</translation>
    </message>
    <message>
        <source>Options &apos;Pages Per Sheet&apos; and &apos;Page Set&apos; cannot be used together.
Please turn one of those options off.</source>
        <translation>Οι επιλογές «Σελίδες ανά φύλλο» και «Σελίδες προς εκτύπωση» δεν μπορούν να χρησιμοποιηθούν μαζί.
Απενεργοποιήστε μία από τις δύο.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to overwrite it?</source>
        <translation>Το %1 υπάρχει ήδη.
Θέλετε να αντικατασταθεί;</translation>
    </message>
    <message>
        <source>2 (2x1)</source>
        <translation>2 (2×1)</translation>
    </message>
    <message>
        <source>Left to Right, Bottom to Top</source>
        <translation>Από αριστερά προς τα δεξιά, από κάτω προς τα πάνω</translation>
    </message>
    <message>
        <source>4 (2x2)</source>
        <translation>4 (2×2)</translation>
    </message>
    <message>
        <source>Odd Pages</source>
        <translation>Μονές σελίδες</translation>
    </message>
    <message>
        <source>Local file</source>
        <translation>Τοπικό αρχείο</translation>
    </message>
    <message>
        <source>6 (2x3)</source>
        <translation>6 (2×3)</translation>
    </message>
    <message>
        <source>16 (4x4)</source>
        <translation>16 (4×4)</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Οι ρυθμίσεις εκτύπωσης διπλής όψης αντικρούονται. Θέλετε να τις διορθώσετε;</translation>
    </message>
    <message>
        <source>Print to File (PDF)</source>
        <translation>Εκτύπωση σε αρχείο (PDF)</translation>
    </message>
    <message>
        <source>Print To File ...</source>
        <translation>Εκτύπωση σε αρχείο...</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Μη έγκυρος ορισμός σελίδων</translation>
    </message>
    <message>
        <source>%1 does not follow the correct syntax. Please use &apos;,&apos; to separate ranges and pages, &apos;-&apos; to define ranges and make sure ranges do not intersect with each other.</source>
        <translation>Το «%1» δεν είναι γραμμένο σωστά. Χωρίστε τις σελίδες και τις περιοχές σελίδων με «,», γράψτε κάθε περιοχή με «-» και φροντίστε να μην επικαλύπτονται οι περιοχές μεταξύ τους.</translation>
    </message>
    <message>
        <source>9 (3x3)</source>
        <translation>9 (3×3)</translation>
    </message>
    <message>
        <source>Right to Left, Top to Bottom</source>
        <translation>Από δεξιά προς τα αριστερά, από πάνω προς τα κάτω</translation>
    </message>
    <message>
        <source>Bottom to Top, Left to Right</source>
        <translation>Από κάτω προς τα πάνω, από αριστερά προς τα δεξιά</translation>
    </message>
    <message>
        <source>The &apos;From&apos; value cannot be greater than the &apos;To&apos; value.</source>
        <translation>Η τιμή «από» δεν μπορεί να είναι μεγαλύτερη από την τιμή «έως».</translation>
    </message>
    <message>
        <source>All Pages</source>
        <translation>Όλες οι σελίδες</translation>
    </message>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Αντικρουόμενες ρυθμίσεις διπλής όψης</translation>
    </message>
    <message>
        <source>%1 is a directory.
Please choose a different file name.</source>
        <translation>Το %1 είναι φάκελος.
Επιλέξτε άλλο όνομα αρχείου.</translation>
    </message>
    <message>
        <source>File %1 is not writable.
Please choose a different file name.</source>
        <translation>Δεν επιτρέπεται η εγγραφή στο αρχείο %1.
Επιλέξτε άλλο όνομα αρχείου.</translation>
    </message>
    <message>
        <source>Bottom to Top, Right to Left</source>
        <translation>Από κάτω προς τα πάνω, από δεξιά προς τα αριστερά</translation>
    </message>
    <message>
        <source>Top to Bottom, Left to Right</source>
        <translation>Από πάνω προς τα κάτω, από αριστερά προς τα δεξιά</translation>
    </message>
    <message>
        <source>Top to Bottom, Right to Left</source>
        <translation>Από πάνω προς τα κάτω, από δεξιά προς τα αριστερά</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message>
        <source>Advanced Option Conflicts</source>
        <translation>Αντικρουόμενες ρυθμίσεις για προχωρημένους</translation>
    </message>
    <message>
        <source>Job Options</source>
        <translation>Επιλογές εργασίας</translation>
    </message>
    <message>
        <source>Page Setup Conflicts</source>
        <translation>Αντικρουόμενες ρυθμίσεις σελίδας</translation>
    </message>
    <message>
        <source>There are conflicts in some advanced options. Do you want to fix them?</source>
        <translation>Ορισμένες ρυθμίσεις για προχωρημένους αντικρούονται. Θέλετε να τις διορθώσετε;</translation>
    </message>
    <message>
        <source>There are conflicts in page setup options. Do you want to fix them?</source>
        <translation>Ορισμένες ρυθμίσεις σελίδας αντικρούονται. Θέλετε να τις διορθώσετε;</translation>
    </message>
    <message>
        <source>Printer Properties</source>
        <translation>Ιδιότητες εκτυπωτή</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>Τι είναι αυτό;</translation>
    </message>
</context>
<context>
    <name>QWhatsThisAction</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>Τι είναι αυτό;</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Εμφάνιση λεπτομερειών...</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Σχετικά με το Qt</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Απόκρυψη λεπτομερειών...</translation>
    </message>
    <message>
        <source>&lt;h3&gt;About Qt&lt;/h3&gt;&lt;p&gt;This program uses Qt version %1.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Σχετικά με το Qt&lt;/h3&gt;&lt;p&gt;Αυτό το πρόγραμμα χρησιμοποιεί το Qt, έκδοση %1.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>RLE Start of right-to-left embedding</source>
        <translation>RLE Αρχή ενσωμάτωσης από δεξιά προς τα αριστερά</translation>
    </message>
    <message>
        <source>ZWSP Zero width space</source>
        <translation>ZWSP Κενό μηδενικού πλάτους</translation>
    </message>
    <message>
        <source>LRI Left-to-right isolate</source>
        <translation>LRI Απομόνωση από αριστερά προς τα δεξιά</translation>
    </message>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Εισαγωγή χαρακτήρα ελέγχου Unicode</translation>
    </message>
    <message>
        <source>LRO Start of left-to-right override</source>
        <translation>LRO Αρχή επιβολής από αριστερά προς τα δεξιά</translation>
    </message>
    <message>
        <source>LRE Start of left-to-right embedding</source>
        <translation>LRE Αρχή ενσωμάτωσης από αριστερά προς τα δεξιά</translation>
    </message>
    <message>
        <source>RLI Right-to-left isolate</source>
        <translation>RLI Απομόνωση από δεξιά προς τα αριστερά</translation>
    </message>
    <message>
        <source>RLM Right-to-left mark</source>
        <translation>RLM Σήμανση από δεξιά προς τα αριστερά</translation>
    </message>
    <message>
        <source>PDF Pop directional formatting</source>
        <translation>PDF Τέλος κατευθυντικής μορφοποίησης</translation>
    </message>
    <message>
        <source>ZWNJ Zero width non-joiner</source>
        <translation>ZWNJ Μη συνδετικό μηδενικού πλάτους</translation>
    </message>
    <message>
        <source>RLO Start of right-to-left override</source>
        <translation>RLO Αρχή επιβολής από δεξιά προς τα αριστερά</translation>
    </message>
    <message>
        <source>PDI Pop directional isolate</source>
        <translation>PDI Τέλος κατευθυντικής απομόνωσης</translation>
    </message>
    <message>
        <source>ZWJ Zero width joiner</source>
        <translation>ZWJ Συνδετικό μηδενικού πλάτους</translation>
    </message>
    <message>
        <source>LRM Left-to-right mark</source>
        <translation>LRM Σήμανση από αριστερά προς τα δεξιά</translation>
    </message>
    <message>
        <source>FSI First strong isolate</source>
        <translation>FSI Απομόνωση κατά τον πρώτο ισχυρό χαρακτήρα</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Μείωση</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Αύ&amp;ξηση</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>Επιλογή ό&amp;λων</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Κύλιση αριστερά</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Κύλιση δεξιά</translation>
    </message>
</context>
<context>
    <name>QCupsPrinterSupport</name>
    <message>
        <source>Authentication needed to use %1 on %2.</source>
        <translation>Για τη χρήση του %1 στο %2 απαιτείται ταυτοποίηση.</translation>
    </message>
    <message>
        <source>Authentication needed to use %1.</source>
        <translation>Για τη χρήση του %1 απαιτείται ταυτοποίηση.</translation>
    </message>
    <message>
        <source>Authentication Needed</source>
        <translation>Απαιτείται ταυτοποίηση</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Κωδικός πρόσβασης:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Όνομα χρήστη:</translation>
    </message>
</context>
<context>
    <name>Print Device Input Slot</name>
    <message>
        <source>Automatic</source>
        <translation>Αυτόματη επιλογή</translation>
    </message>
</context>
<context>
    <name>Print Device Output Bin</name>
    <message>
        <source>Automatic</source>
        <translation>Αυτόματη επιλογή</translation>
    </message>
</context>
</TS>
