// Where the controls of each form are: groups under headings, rows of fields in them.

import * as face from "#face_words";
import * as words from "#words";

export interface Group {
  heading?: string;
  /// The control whose caption is the heading.
  frame?: string;
  of: (string | Group)[];
  /// Beside each other, where there is room.
  row?: boolean;
  /// The sheet of paper that the form shows.
  sheet?: boolean;
}

/// Forms that are the page itself; all others are dialogs.
export const mainForms = new Set(["AwizoWysylki", "StartPage"]);

export const mainForm: Group = {
  of: [
    {
      frame: "frmDaneNaglowka", of: [
        {
          row: true, of: [
            { heading: words.documentGroup, of: ["txtNrAwiza", { row: true, of: ["txtDataAwiza", "txtDespatchAdviceTime"] }] },
            { heading: words.orderGroup, of: [{ row: true, of: ["txtNrZam", "dpDataZam"] }, "txtCodeByBuyer"] },
            {
              heading: words.deliveryGroup, of: [
                { row: true, of: ["txtEstimatedDeliveryDate", "txtEstimatedDeliveryTime"] },
                { row: true, of: ["cboxPackageDescription", "txtGoodsIdentity"] },
              ],
            },
          ],
        },
        {
          row: true, of: [
            { of: ["lblILNSprzedWart", "lblNameSprzedWart"] }, { of: ["lblILNKupWart", "lblNameKupWart"] },
            { of: ["lblILNMiejscaDostValue", "lblNazwaMiejscaDostWart"] },
            { of: ["lblNazwaMiejscaDostawy", "lblAdresMiejscaDostawy"] },
          ],
        },
      ],
    },
    {
      frame: "frmPozycje", of: [
        { row: true, of: ["btnDodaj", "btnEdytuj", "btnUsun"] }, "grdPozycje",
        { row: true, of: ["comboStawkaVAT", "btnUzupelnij", "btnNadpisz"] },
        { row: true, of: ["comboCountry", "Image2", "btnUzupelnij2", "btnNadpisz2"] },
      ],
    },
    {
      frame: "Frame1", of: [{ row: true, of: ["btnDodajOpak", "btnEdytujOpak", "btnUsunOpak"] }, "grdOpakowania"],
    },
    { frame: "frmPodsumowanie", of: ["grdSuma", { row: true, of: ["lblCurrencyWart", "lblNiepelnaWagaKom"] }] },
    { row: true, of: ["btnWczytaj", "btnZapisz", "btnPrzeslij"] },
    { row: true, of: ["lblOnLineStatus", "lblVersion"] },
  ],
};

export const startPage: Group = {
  of: [{
    frame: "frmOffLine", of: [
      "lblFolder", "lblSeller", "lblMissing", "cboxPartner", { row: true, of: ["btnOffLine", "btnOpen"] },
    ],
  }],
};

export const dialogs: Record<string, Group> = {
  DlgDodaj: {
    of: [
      "lblPozycjaTow",
      {
        heading: words.productGroup, of: [
          "cboxNazwaProd", "txtNazwaProdWart",
          { row: true, of: ["cboxEANProd", "txtlEANProdWart", "cboxKodAPP", "txtKodKup", "cboxKodSprzed", "txtKodSprzed"] },
          "cboxJednostkaMiary",
        ],
      },
      {
        row: true, of: [
          {
            heading: words.quantityGroup,
            of: ["txtIloscZam", "txtIloscPotw", "txtCenaNetto", "txtAmount", "cboxStawkaVAT", "cboxKodVAT"],
          },
          {
            heading: words.datesGroup, of: [
              "dtProdDate", "dtExpiryDate", { row: true, of: ["comboCountry", "btnISOcodes"] },
              { row: true, of: ["txtCDN1", "dpCDN2", "txtCDN3", "txtCDN4"] },
            ],
          },
        ],
      },
      {
        of: [
          { row: true, of: ["lblPackedQuantity", "lblPackedQuantityValue"] }, "grdPozycje", "grdPozycjeN",
          { row: true, of: ["Command1", "Command2", "Command3"] },
        ],
      },
      { row: true, of: ["btnDodaj", "btnZamknij"] },
    ],
  },
  DlgdodajPule: {
    of: ["cboxPackages", { row: true, of: ["txtQuantity", "UpDown1"] }, { row: true, of: ["btnDodaj", "btnZamknij"] }],
  },
  DlgSzczegoly: {
    of: [
      {
        heading: words.packageGroup,
        of: ["cboxPackageType", "txtPackageDesc", "cboxParentPackage", { row: true, of: ["lblLevelValue", "lblIDLowValue", "lbIDValue"] }],
      },
      {
        row: true, of: [
          {
            heading: words.sizesGroup,
            of: ["txtPackageWeight", "txtPackageLength", "txtPackageWidth", "txtPackageHeight", "txtSerialNumberN"],
          },
          { heading: words.packageDeliveryGroup, of: ["cboxILNLokalizacji", "cboxLokalizacja"] },
        ],
      },
      { row: true, of: ["btnDodaj", "btnZamknij"] },
    ],
  },
  FindDialog: { of: ["txtWhat", "lblNothing", { row: true, of: ["btnFind", "btnClose"] }] },
  FaultList: { of: ["grdFaults", { row: true, of: ["btnGo", "btnClose"] }] },
  PackagesDialog: {
    of: [
      { row: true, of: ["txtCount", "cboType"] }, "txtDescription", "cboParent",
      { row: true, of: ["txtWeight", "txtLength", "txtWidth", "txtHeight"] }, "txtPlace",
      "lblExample", "lblNumbers", "lblRefusal", { row: true, of: ["btnAdd", "btnClose"] },
    ],
  },
  NumberRangeDialog: {
    of: [
      { row: true, of: ["txtExtension", "txtPrefix"] }, { row: true, of: ["txtFirst", "txtLast", "txtNext"] },
      "lblPlace", "lblExample", "lblLeft", "lblDoubt",
      { heading: words.partGroup, of: [{ row: true, of: ["txtPartCount", "txtPartPlace", "btnHandOut"] }] },
      { row: true, of: ["btnSave", "btnClose"] },
    ],
  },
  DistributionDialog: {
    of: [
      { row: true, of: ["cboLines", "cboPackages"] }, { row: true, of: ["cboSpread", "txtEach"] },
      "grdParts", "lblSummary", { row: true, of: ["btnDo", "btnClose"] },
    ],
  },
  PapersDialog: {
    of: [
      { row: true, of: ["cboPaper", "cboPackages"] }, { row: true, of: ["cboSize", "cboCopies", "cboPrinter"] },
      { sheet: true, of: [] }, "lblNotes",
      { row: true, of: ["btnPrevious", "lblSheet", "btnNext", "btnPdf", "btnPrint", "btnClose"] },
    ],
  },
  DlgIsoCodes: { of: ["grdISO", { row: true, of: ["btnAccept", "btnCancel"] }] },
  DlgWczytajZapisz: {
    of: [
      "Drive", { row: true, of: ["DirList", "FileList"] }, "txtAwizoPlik", "lblOffLinePath",
      { row: true, of: ["btnWczytaj", "ImageWczytaj", "ImageZapisz", "ImageZamknij"] },
    ],
  },
};

/// Words of controls that have none of their own.
export const ownWords: Record<string, string> = {
  grdPozycje: words.linesTable,
  grdOpakowania: words.packagesTable,
  grdSuma: words.totalsTable,
  txtEdycja: words.quantityEditor,
  txtEdycjaSuma: words.totalsTable,
  comboCountry: words.country,
  "DlgDodaj.grdPozycje": words.linePackagesTable,
  "DlgDodaj.grdPozycjeN": words.linePackagesTable,
  "DlgDodaj.txtCDN1": words.customsNumber,
  "DlgDodaj.dpCDN2": words.customsDate,
  "DlgDodaj.txtCDN3": words.customsSerial,
  "DlgDodaj.txtCDN4": words.customsItem,
  "DlgIsoCodes.grdISO": words.countriesTable,
  "FindDialog.txtWhat": words.whatToFind,
  "FaultList.grdFaults": words.faultsTable,
  "DistributionDialog.grdParts": words.partsTable,
  "DlgWczytajZapisz.Drive": face.drives,
  "DlgWczytajZapisz.DirList": words.folder,
  "DlgWczytajZapisz.FileList": words.fileName,
  "DlgWczytajZapisz.txtAwizoPlik": words.fileName,
  "DlgWczytajZapisz.lblOffLinePath": words.folder,
  "DlgWczytajZapisz.ImageWczytaj": words.chooseFile,
  "DlgWczytajZapisz.ImageZapisz": words.writeFile,
  "DlgWczytajZapisz.ImageZamknij": words.closeDialog,
};

/// Labels whose heading another control beside them shows.
export const besideTheirHeading = new Set([
  "lblNameSprzedWart", "lblNameKupWart", "lblAdresMiejscaDostawy", "DlgDodaj.lblPackedQuantityValue",
]);

/// Fields that are edited in the place of a table's cell: a matter of where things are, as the rest here.
export const overCells: Record<string, string> = { grdPozycje: "txtEdycja", grdSuma: "txtEdycjaSuma" };
