<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fa">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>حساب و گذرواژه را وارد کنید.</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>انجام کار مربوط به حساب ممکن نشد</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>این حساب را به خاطر بسپار</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>ورود</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>ورود</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>با حساب Tovra خود وصل شوید و مکان‌های در دسترس را همگام کنید.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>ایمیل یا شناسهٔ کاربری</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>گذرواژه</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>ثبت‌نام</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>گذرواژه را فراموش کرده‌اید؟</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>در حال ورود...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>تمدید</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>خروج از حساب</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>وارد شده‌اید</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>شناسهٔ کاربری: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>طرح: %1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>روزهای باقی‌مانده: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>حداکثر دستگاه‌های هم‌زمان: %1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>در حال خروج از حساب...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>در حال باز کردن…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>برنامه</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>تغییر…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>اجرا هنگام ورود به سیستم</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>Tovra هنگام ورود به میز کار در سینی سیستم اجرا شود.</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>نمایش پنجره هنگام اجرا</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>این پنجره هنگام اجرای Tovra باز شود؛ در غیر این صورت فقط نماد سینی سیستم نمایش داده می‌شود.</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>مانند میز کار</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>روشن</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>تیره</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>ظاهر</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>روشن، تیره یا پیروی از میز کار.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>تغییر زبان</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>زبان</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1، پیروی از میز کار</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>اجرا هنگام ورود به سیستم به‌روز نشد</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>نمایش…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>نمایش میان‌برهای صفحه‌کلید</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>میان‌برهای صفحه‌کلید</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>همه کلیدهایی که در این پنجره کار می‌کنند.</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>مکان %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>مکان‌های دیگر</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>ویژه</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>مکان‌ها: %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>تأخیر اندازه‌گیری نشده</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>علاقه‌مندی</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>متصل</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>در طرح شما نیست</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>طرح شما این مکان را شامل نمی‌شود. برای استفاده از آن، طرح خود را ارتقا دهید.</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>ممکن است این فهرست قدیمی باشد.</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>قفل است: به طرح %1 نیاز دارد. برای استفاده از آن، طرح خود را ارتقا دهید.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>لغو</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>نشانی API</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>ذخیره</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>بازنشانی به پیش‌فرض</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>خاموش</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>آخرین مکان</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>سریع‌ترین مکان</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>اتصال خودکار</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>سرویس Tovra هنگام شروع به کجا وصل شود.</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>ذخیرهٔ نشانی API</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>بازنشانی نشانی API به پیش‌فرض</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>نشانی‌ای که سرویس Tovra از طریق آن به سرورهای حساب و مکان‌ها دسترسی پیدا می‌کند. فقط وقتی پشتیبانی از شما خواست آن را تغییر دهید.</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>اعتبارسنجی: %1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>تأییدشده توسط سرویس Tovra</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>تأیید نشده: سرویس Tovra این نشانی را ذخیره کرد اما نتوانست آن را تأیید کند</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>آفریقا</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>جنوبگان</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>آسیا</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>اروپا</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>خاورمیانه</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>آمریکای شمالی</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>اقیانوسیه</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>آمریکای جنوبی</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>سرویس Tovra در حال اجرا نیست.</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>دسترسی به سرویس Tovra رد شد. این کاربر را به گروه tovracli اضافه کنید، سپس از سیستم خارج شوید و دوباره وارد شوید.</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>اتصال به سرویس Tovra ممکن نشد.</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>سرویس Tovra برای حالت‌های قطع اضطراری بیش از حد قدیمی است. Tovra را به‌روزرسانی کنید.</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>افغانستان</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>جزایر آلند</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>آلبانی</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>الجزایر</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>ساموآی آمریکایی</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>آندورا</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>آنگولا</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>آنگیل</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>آنتیگوا و باربودا</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>آرژانتین</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>ارمنستان</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>آروبا</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>استرالیا</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>اتریش</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>آذربایجان</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>باهاما</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>بحرین</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>بنگلادش</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>باربادوس</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>بلاروس</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>بلژیک</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>بلیز</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>بنین</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>برمودا</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>بوتان</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>بولیوی</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>بوسنی و هرزگوین</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>بوتسوانا</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>برزیل</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>برونئی دارالسلام</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>بلغارستان</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>بورکینافاسو</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>بوروندی</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>کامبوج</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>کامرون</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>کانادا</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>کیپ‌ورد</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>جزایر کِیمن</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>جمهوری آفریقای مرکزی</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>چاد</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>شیلی</translation>
    </message>
    <message>
        <source>China</source>
        <translation>چین</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>کلمبیا</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>کومورو</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>کونگو</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>جمهوری دموکراتیک کنگو</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>جزایر کوک</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>کاستاریکا</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>ساحل عاج</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>کرواسی</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>کوبا</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>قبرس</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>چک</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>دانمارک</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>جیبوتی</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>دومینیکا</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>جمهوری دومینیکن</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>اکوادور</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>مصر</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>السالوادور</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>گینهٔ استوایی</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>اریتره</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>استونی</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>اتیوپی</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>جزایر فالکلند(مالویناس)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>جزایر فارو</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>فیجی</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>فنلاند</translation>
    </message>
    <message>
        <source>France</source>
        <translation>فرانسه</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>گویان فرانسه</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>پلی‌نزی فرانسه</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>گابون</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>گامبیا</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>گرجستان</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>آلمان</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>غنا</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>گیبرالتار</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>یونان</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>گروئنلند</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>گرانادا</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>گوادلوپ</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>گوام</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>گواتمالا</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>گرنزی</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>گینه</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>گینهٔ بیسائو</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>گویان</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>هاییتی</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>دولت شهر واتیکان</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>هندوراس</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>هنگ کنگ</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>مجارستان</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>ایسلند</translation>
    </message>
    <message>
        <source>India</source>
        <translation>هندوستان</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>اندونزی</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>ایران، جمهوری اسلامی</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>عراق</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>ایرلند</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>جزیره من</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>اسراییل</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>ایتالیا</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>جاماییکا</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>ژاپن</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>جرسی</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>اردن</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>قزاقستان</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>کنیا</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>کیریباتی</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>کره، جمهوری دموکراتیک خلق</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>جمهوری کره</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>کویت</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>قرقیزستان</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>جمهوری دموکراتیک خلق لائو</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>لتونی</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>لبنان</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>لسوتو</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>لیبریا</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>لیبی</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>لیختن‌اشتاین</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>لیتوانی</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>لوگزامبورگ</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>ماکائو</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>مقدونیه شمالی</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>ماداگاسکار</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>مالاوی</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>مالزی</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>مالدیو</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>مالی</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>جزیره مالت</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>جزایر مارشال</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>مارتینیک</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>موریتانی</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>موریتیوس</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>مایوت</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>مکزیک</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>میکرونزی، ایالات فدرال</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>مولداوی</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>موناکو</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>مغولستان</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>مونته نگرو</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>مونت‌سرات</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>مراکش</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>موزامبیک</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>میانمار</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>نامیبیا</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>نائورو</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>نپال</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>هلند</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>کالدونیای جدید</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>نیوزیلند</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>نیکاراگوئه</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>نیجر</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>نیجریه</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>نیوئه</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>جزیرهٔ نورفولک</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>جزایر ماریانای شمالی</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>نروژ</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>عمان</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>پاکستان</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>پالائو</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>فلسطین</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>پاناما</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>پاپوا گینهٔ نو</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>پاراگوئه</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>پرو</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>فیلیپین</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>لهستان</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>پرتغال</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>پورتو ریکو</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>قطر</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>رئونیون</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>رومانی</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>روسیه فدرال</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>رواندا</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>سنت هلنا, Ascension و Tristan da Cunha</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>سن کیتس و نویس</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>سن لوسیا</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>سنت پیر و میکلون</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>سن وینسنت و گرنادین</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>ساموا</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>سان مارینو</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>سائو تومه و پرینسیپه</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>عربستان سعودی</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>سنگال</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>صربستان</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>سیشل</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>سیرالئون</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>سنگاپور</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>اسلواکی</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>اسلوونی</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>جزایر سلیمان</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>سومالی</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>آفریقای جنوبی</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>سودان جنوبی</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>اسپانیا</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>سری‌لانکا</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>سودان</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>سورینام</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>پادشاهی سوازیلند</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>سوئد</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>سوئیس</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>جمهوری عربی سوریه</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>تایوان</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>تاجیکستان</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>تانزانیا</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>تایلند</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>تیمور شرقی</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>توگو</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>توکلائو</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>تونگا</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>ترینیداد و تُباگو</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>تونس</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>ترکیه</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>ترکمنستان</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>جزایر ترک و کایکوس</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>تووالو</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>اوگاندا</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>اکراین</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>امارات متحده عربی</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>انگلستان</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>ایالات متحدهٔ آمریکا</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>اروگوئه</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>ازبکستان</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>وانواتو</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>ونزوئلا</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>ویتنام</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>جزایر ویرجین ، بریتانیا</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>جزایر ویرجین ایالات متحده</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>والیس و فیوتونا</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>صحرای غربی</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>یمن</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>زامبیا</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>زیمبابوه</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: هیچ مکانی با «%1» مطابقت ندارد</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: Tovra مشغول اتصال یا ورود دیگری است؛ پس از پایان آن دوباره امتحان کنید</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: پیش از اتصال وارد Tovra شوید</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: طرح شما شامل «%1» نیست</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: درخواست ناموفق بود</translation>
    </message>
    <message>
        <source>tovra: %1</source>
        <translation>tovra: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandLine</name>
    <message>
        <source>tovra: give only one of %1</source>
        <translation>tovra: فقط یکی از این گزینه‌ها را بدهید: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>Tovra اجرا نشد</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>Tovra شروع نشد</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>Tovra در حال اجرا نسخهٔ قدیمی‌تری است: به جلو آمد اما درخواست را اجرا نکرد؛ آن را ببندید و دوباره امتحان کنید</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>Tovra در حال اجرا پاسخ نداد</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>پیکربندی</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>پوشهٔ زمان اجرا</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>گزارش‌ها</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>پروندهٔ وضعیت</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>کلید اعتبارنامه‌ها</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>تاریخچه</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>نمایه‌ها</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>سوکت کنترل</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>پروندهٔ PID</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>نشانی کنترل</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>عیب‌یابی</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>تعمیر</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>باز کردن گزارش‌ها</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>تعمیر اتصال</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>وقتی ترافیک گیر کرده است، قطع اضطراری، پراکسی محلی و تونل را بازنشانی می‌کند.</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>پوشهٔ گزارش‌های سرویس Tovra، برای پشتیبانی.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>رونوشت</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>رونوشت از مسیر %1</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>مسیرهای سرویس</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>جایی که سرویس Tovra پرونده‌هایش را نگه می‌دارد.</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>نسخهٔ سرویس Tovra</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>پروتکل کنترل</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>این برنامه از نسخهٔ 1 استفاده می‌کند.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>تنظیم نشده</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1، ناسازگار</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>پاک کردن جست‌وجو</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>پاک کردن متن</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>اجرا هنگام ورود به سیستم در این سکو پشتیبانی نمی‌شود.</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>پروندهٔ اجرایی Tovra برای اجرا هنگام ورود به سیستم پیدا نشد.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>آماده‌سازی پوشهٔ اجرا هنگام ورود به سیستم ممکن نشد.</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>اجرای Tovra هنگام ورود به سیستم به‌روز نشد.</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>ایمن‌سازی اجرای Tovra هنگام ورود به سیستم ممکن نشد.</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>حذف Tovra از اجرا هنگام ورود به سیستم ممکن نشد.</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>میان‌برهای صفحه‌کلید</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>میان‌برهای صفحه‌کلید</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>این کلیدها در هر جای پنجرهٔ Tovra کار می‌کنند. Tab بین کنترل‌ها جابه‌جا می‌شود.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>کلیدها</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>عمل</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>بستن</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>در دسترس نیست</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>قفل کامل</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>قفل کامل در دسترس نیست</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>روشن</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>خاموش</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>قطع اضطراری به حالت VPN نیاز دارد</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>قطع اضطراری در Tovra Proxy کار نمی‌کند. برای روشن کردن آن به حالت خودکار (پیشنهادی)، TovraVPN یا WireGuard بروید.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>رفتن به خودکار و روشن کردن</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>رفتن به حالت خودکار و روشن کردن قطع اضطراری</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>انتخاب حالت…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>یک حالت برای قطع اضطراری انتخاب کنید</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>لغو</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>Tovra Proxy به خاموش بودن قطع اضطراری نیاز دارد</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>قطع اضطراری جلوی Tovra Proxy را می‌گیرد. ابتدا قطع اضطراری را در تنظیمات خاموش کنید، سپس حالت را عوض کنید.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>باز کردن تنظیمات</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>باز کردن تنظیمات برای خاموش کردن قطع اضطراری</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>قطع اضطراری</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>مسدود کردن ترافیک خارج از تونل</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>خودکار</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>تا وقتی Tovra وصل است یا در حال اتصال است، ترافیک خارج از تونل را مسدود می‌کند.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>همیشه</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>تا وقتی قطع اضطراری روشن است، ترافیک خارج از تونل را مسدود می‌کند، حتی وقتی اتصال قطع است.</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>قفل کامل</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>تنظیم‌شده توسط سرویس Tovra: ترافیک خارج از تونل مسدود می‌ماند و قطع اضطراری را نمی‌توان از اینجا خاموش کرد.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>حالت</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>قطع اضطراری چه زمانی ترافیک را مسدود کند.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>شبکهٔ محلی</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>اینکه چاپگرها، پوشه‌های اشتراکی و دیگر دستگاه‌های نزدیک هنگام مسدود بودن ترافیک در دسترس بمانند یا نه.</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>حالت قطع اضطراری: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>اکنون: %1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1. سرویس Tovra قطع اضطراری را روشن نگه می‌دارد؛ نمی‌توان آن را از اینجا خاموش کرد.</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>Tovra Proxy در حال استفاده است: قطع اضطراری به حالت VPN نیاز دارد.</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>در دسترس</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>مسدود</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>زبان</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>استفاده از زبان سیستم</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>استفاده از زبان سیستم (%1)</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>پیروی از زبان میز کار</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>انتخاب زبان</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>Tovra برای نمایش زبان جدید دوباره راه‌اندازی می‌شود.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>جست‌وجوی زبان‌ها</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>زبان‌ها</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>استفاده از زبان</translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>LocationsEmptyState</name>
    <message>
        <source>The Tovra service is not available.
Locations appear here as soon as it responds.</source>
        <translation>سرویس Tovra در دسترس نیست.
مکان‌ها به محض پاسخ آن در اینجا نمایش داده می‌شوند.</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>در حال بارگذاری مکان‌ها...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>سرویس در حال حاضر مکانی برای ارائه ندارد.
کمی بعد «تازه‌سازی» را امتحان کنید.</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>هنوز علاقه‌مندی‌ای ندارید.
برای نگه داشتن یک مکان در اینجا، به آن ستاره بدهید (یا آن را انتخاب کنید و Space را بزنید).</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>در این زبانه مکانی نیست.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>هیچ موردی با «%1» مطابقت ندارد.
نام یک کشور، شهر یا کدی مانند «de» را امتحان کنید.</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>بارگذاری مکان‌ها ممکن نشد: %1
برای تلاش دوباره، «تازه‌سازی» را بزنید.</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>حذف از علاقه‌مندی‌ها</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>افزودن به علاقه‌مندی‌ها</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>برای ستاره دادن، یک مکان را در فهرست انتخاب کنید</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>حذف %1 از علاقه‌مندی‌ها</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>افزودن %1 به علاقه‌مندی‌ها</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>همهٔ مکان‌ها</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>برای اتصال به یک مکان روی آن دوبار کلیک کنید، یا روی یک کشور یا شهر تا به سریع‌ترین مکان آن وصل شوید.</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>جست‌وجوی کشورها، شهرها، مکان‌ها یا P2P</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>جست‌وجوی مکان‌ها</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>هیچ‌یک از مکان‌های %1 در طرح شما نیست.</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>%1 در طرح شما نیست. برای استفاده از آن، طرح خود را ارتقا دهید.</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>کنش‌های مکان</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>اتصال به سریع‌ترین مکان</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>جمع کردن</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>باز کردن</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>حذف از علاقه‌مندی‌ها</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>افزودن به علاقه‌مندی‌ها</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>نتایج در همهٔ زبانه‌ها: %1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>مکان‌ها: %1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>متصل به %1</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>در حال اندازه‌گیری تأخیر...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>ممکن است این فهرست قدیمی باشد؛ «تازه‌سازی» فهرست جدیدی می‌گیرد.</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>تا رسیدن گروه‌های سرویس، بر اساس منطقه گروه‌بندی می‌شود.</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>همه</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>رایگان</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>ویژه</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>علاقه‌مندی‌ها</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>زبانه‌های مکان‌ها</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>مرتب‌سازی مکان‌ها</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>ترتیب سرویس</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>نام</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>تأخیر</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>ترتیب مکان‌ها در هر گروه</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>دریافت دوبارهٔ فهرست مکان‌ها و اندازه‌گیری تأخیر آن‌ها</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>تازه‌سازی (%1 ث)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تازه‌سازی</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>تازه‌سازی مکان‌ها، دوباره پس از %1 ثانیه ممکن است</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>تازه‌سازی مکان‌ها</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>مکان‌ها</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation>Tovra</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <extracomment>Shown when a request to the Tovra service failed without a reason. Word it as a user would understand it: &quot;Could not complete the action&quot;</extracomment>
        <translation>انجام این کار ممکن نشد</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>تغییر تنظیمات ممکن نشد</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>تغییر حالت ممکن نشد</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>Tovra پروتکلی را انتخاب می‌کند که اینجا بهترین کارکرد را دارد.</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>تونلی سریع و مدرن برای همهٔ ترافیک شما.</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>همهٔ ترافیک از تونل TovraVPN عبور می‌کند.</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>به‌طور پیش‌فرض تونل؛ مناطق و سایت‌های انتخاب‌شده مستقیم می‌روند.</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>بدون تونل: برنامه‌هایی که از پراکسی محلی استفاده می‌کنند از طریق Tovra به اینترنت می‌رسند.</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>پراکسی محلی، با عبور مستقیم مناطق و سایت‌های انتخاب‌شده.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>در حال اعمال…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>قطع اضطراری به حالت VPN نیاز دارد: برای روشن کردن آن خودکار، WireGuard یا TovraVPN را انتخاب کنید.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>انتخاب حالت</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>حالت فعلی به محض پاسخ سرویس Tovra نمایش داده می‌شود.</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>حالت فعلی: %1. این نسخه از Tovra آن را نمی‌شناسد؛ برای جایگزینی آن یکی از حالت‌های بالا را انتخاب کنید.</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>خودکار</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation>TovraVPN تفکیکی</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN سراسری</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy تفکیکی</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy سراسری</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>حالت مسیریابی</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>انتخاب کنید ترافیک شما چگونه مسیریابی شود و کدام سایت‌ها از تونل عبور نکنند.</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>مکان‌ها</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>حالت</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>تنظیمات</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>حساب</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>شبکهٔ محلی</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>پراکسی سیستم</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>شبکه</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>مستقیم</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>چاپگرها، پوشه‌های اشتراکی و دیگر دستگاه‌های شبکهٔ شما در دسترس می‌مانند</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>محافظت‌شده</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>ترافیک شبکهٔ محلی مانند بقیهٔ ترافیک محافظت می‌شود</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>خاموش</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>تنظیمات پراکسی میز کار دست‌نخورده می‌مانند</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>روشن</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>تنظیمات پراکسی میز کار به Tovra اشاره می‌کنند</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>قفل</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>تنظیمات پراکسی میز کار به Tovra اشاره می‌کنند و همین‌طور می‌مانند</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>اینکه دستگاه‌های شبکهٔ محلی شما هنگام مسیریابی ترافیک توسط Tovra در دسترس بمانند یا نه.</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>تنظیمات پراکسی میز کار را به Tovra اشاره دهید، یا جلوی تغییر آن‌ها توسط برنامه‌های دیگر را هم بگیرید.</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>شبکه</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>شنوندهٔ SOCKS5</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>شنوندهٔ HTTP</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>اعمال شنونده‌ها</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>سرورهای DNS محلی</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>برای نمونه 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>ذخیرهٔ سرورها</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>پاک کردن سرورها</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>بازنشانی DNS تفکیکی</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>خاموش</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>روشن</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>روشن و قفل‌شده</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>پراکسی سیستم</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>تنظیمات پراکسی میز کار را به Tovra اشاره می‌دهد؛ حالت قفل‌شده جلوی تغییر آن‌ها توسط برنامه‌های دیگر را می‌گیرد.</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>مستقیم</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>محافظت‌شده</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>شبکهٔ محلی</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>«مستقیم» دستگاه‌های نزدیک را خارج از تونل در دسترس قرار می‌دهد؛ «محافظت‌شده» همه‌چیز را از تونل می‌فرستد.</translation>
    </message>
    <message>
        <source>SOCKS5</source>
        <translation>SOCKS5</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>Local proxy listeners</source>
        <translation>شنونده‌های پراکسی محلی</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>نشانی‌هایی که سرویس در آن‌ها اتصال‌های پراکسی را می‌پذیرد، به شکل host:port. برای بستن یک شنونده، فیلد آن را خالی بگذارید.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>خودکار</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>DNS محلی</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>DNS راه دور</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>DNS تفکیکی</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>کدام حل‌کننده به نام‌هایی که خارج از تونل می‌مانند پاسخ دهد.</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>نشانی‌های IP حل‌کننده‌ها برای نام‌های محلی، جداشده با ویرگول.</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>در حال اعمال: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>هیچ</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>در حال اعمال: %1، سرورها %2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>(از %1)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>نامشخص</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>(از تنظیمات سیستم)</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>(از فهرست شما)</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>بستن اعلان</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>اعلان: %1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>قواعد تفکیک سفارشی تغییری نکرد</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>جست‌وجوی کشور، شهر یا مکان</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>جست‌وجوی اتصال سریع</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>جست‌وجوهای اخیر</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>مکان‌های اخیر</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>نام کشور، شهر یا مکان را بنویسید</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>هیچ مکانی با «%1» مطابقت ندارد</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
</context>
<context>
    <name>QuickEntryPopup</name>
    <message>
        <source>Search results</source>
        <translation>نتایج جست‌وجو</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>نامشخص</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>لغو</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>ترجیحات</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>تغییرات پس از تأیید سرویس Tovra اعمال می‌شوند.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>در حال اعمال تنظیمات...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>تنظیمات</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>به محض پاسخ سرویس Tovra می‌توانید دوباره تنظیمات را تغییر دهید.</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>در انتظار سرویس Tovra...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>یک درگاه اضافه کنید: host:port، برای نمونه 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>«%1» نشانی IPv6 نیست.</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>نشانی IPv6 را داخل کروشه بنویسید: [::1]:1080.</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>پیش از درگاه یک میزبان اضافه کنید: host:port.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>«%1» نام میزبان یا نشانی IP نیست.</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>پس از دونقطه یک درگاه اضافه کنید: host:port.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>درگاه باید عددی از 1 تا 65535 باشد.</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>یک نشانی API وارد کنید، یا آن را به پیش‌فرض بازنشانی کنید.</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>نشانی API باید با http:// یا https:// شروع شود.</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>نشانی API به یک میزبان نیاز دارد، برای نمونه https://api.example.com.</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>دست‌کم یک سرور DNS وارد کنید، یا فهرست را پاک کنید.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>«%1» نشانی IP نیست.</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>برای فرستادن بخشی از ترافیک به‌صورت مستقیم، TovraVPN تفکیکی یا Tovra Proxy تفکیکی را انتخاب کنید: بر اساس منطقه، GFWList یا قواعد خودتان.</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>مسیر پیش‌فرض</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>مستقیم</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>هر چه در زیر انتخاب نشده مستقیم می‌رود</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>انتخاب…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>انتخاب مناطق</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>مناطق</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>قواعد تفکیک سفارشی</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>ویرایش قواعد…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>ویرایش قواعد تفکیک سفارشی</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>مسیریابی تفکیکی</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>گزینه‌های TovraVPN تفکیکی</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>گزینه‌های Tovra Proxy تفکیکی</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>تونل</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>پراکسی</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>هر چه در زیر انتخاب نشده از تونل عبور می‌کند</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>هر چه در زیر انتخاب نشده از پراکسی عبور می‌کند</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>ترافیک مستقیم می‌رود مگر اینکه یک منطقه، GFWList یا یک قاعده چیز دیگری بگوید.</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>ترافیک از تونل عبور می‌کند مگر اینکه یک منطقه یا قاعده آن را مستقیم بفرستد.</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>ترافیک از پراکسی عبور می‌کند مگر اینکه یک منطقه یا قاعده آن را مستقیم بفرستد.</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>هیچ منطقه‌ای انتخاب نشده است.</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>مستقیم: %1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>از طریق تونل: %1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>از طریق پراکسی: %1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList ← تونل</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList ← پراکسی</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>سایت‌های موجود در GFWList همیشه از تونل عبور می‌کنند.</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>سایت‌های موجود در GFWList همیشه از پراکسی عبور می‌کنند.</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>فهرست‌های دامنه و نشانی خودتان.</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>فهرست‌های دامنه و نشانی خودتان. قواعد موجود: %1.</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>ورود ممکن نشد</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>خروج از حساب ممکن نشد</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>بارگذاری حساب ممکن نشد</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>باز کردن صفحهٔ تمدید ممکن نشد</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>در حال تازه‌سازی مکان‌ها...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>تازه‌سازی مکان‌ها از قبل در جریان است</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>به‌روزرسانی علاقه‌مندی ممکن نشد</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>تازه‌سازی مکان‌ها ممکن نشد</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>تازه‌سازی گروه‌های مکان ممکن نشد</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>مکان‌ها به‌روز شدند</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>اتصال به این مکان ممکن نشد</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>اتصال ممکن نشد</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>قطع اتصال ممکن نشد</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>تغییر زبان ممکن نشد</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>Tovra برای اعمال زبان رابط کاربری دوباره راه‌اندازی می‌شود.</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>راه‌اندازی دوبارهٔ Tovra ممکن نشد. لطفاً برنامه را خودتان دوباره اجرا کنید.</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>تغییر حالت ممکن نشد</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>به‌روزرسانی شبکهٔ محلی ممکن نشد</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>به‌روزرسانی پراکسی سیستم ممکن نشد</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>لطفاً تا پایان عملیات فعلی صبر کنید</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>برای روشن کردن قطع اضطراری یک حالت VPN انتخاب کنید</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>بارگذاری قطع اضطراری ممکن نشد</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>به‌روزرسانی قطع اضطراری ممکن نشد</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>قواعد تفکیک سفارشی به‌روز شد، اما تازه‌سازی قواعد ممکن نشد</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>بارگذاری قواعد تفکیک ممکن نشد</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>درون‌ریزی قواعد تفکیک ممکن نشد</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>قواعد تفکیک سفارشی به‌روز شد (%n قاعده)</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>بارگذاری مسیرهای پیکربندی ممکن نشد</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>بارگذاری نشانی API ممکن نشد</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>به‌روزرسانی نشانی API ممکن نشد</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>نشانی API به پیش‌فرض بازنشانی شد</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>نشانی API تأیید و ذخیره شد</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>نشانی API ذخیره شد اما تأیید نشد</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>به‌روزرسانی اتصال خودکار ممکن نشد</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>به‌روزرسانی نشانی شنود پراکسی ممکن نشد</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>نشانی شنود پراکسی برای اتصال دوباره ذخیره شد</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>نشانی شنود پراکسی به‌روز شد</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>بارگذاری DNS تفکیکی ممکن نشد</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>به‌روزرسانی DNS تفکیکی ممکن نشد</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>DNS تفکیکی به‌روز شد</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>تعمیر ناموفق بود</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>تعمیر انجام شد</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>دسترسی به سرویس Tovra ممکن نشد</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>بارگذاری زبان‌ها ممکن نشد</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>در حال بررسی به‌روزرسانی‌ها...</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>بررسی به‌روزرسانی‌ها ممکن نشد</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>Tovra %1 در دسترس است</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Tovra به‌روز است</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>در حال بررسی سازگاری سرویس Tovra...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>رابط کاربری Tovra و سرویس آن با هم سازگار نیستند. پیش از ادامه، Tovra را به‌روزرسانی کنید.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>بارگذاری نسخه ممکن نشد</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>در حال لغو...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>شروع بارگیری به‌روزرسانی ممکن نشد</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>شروع بارگیری تأیید نشد. در حال بررسی وضعیت آن...</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>لغو تأیید نشد. در حال تلاش دوباره...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>خواندن پیشرفت بارگیری ممکن نشد. در حال تلاش دوباره...</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>این بارگیری مربوط به نسخهٔ دیگری از به‌روزرسانی است. دوباره به‌روزرسانی‌ها را بررسی کنید.</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>بارگیری پیش از آنکه لغو شود کامل شد. نصب‌کننده باز نشد.</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>اطلاعات به‌روزرسانی در دسترس نیست. دوباره به‌روزرسانی‌ها را بررسی کنید.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>به‌روزرسانی بارگیری شد، اما باز کردن نصب‌کننده ممکن نشد.</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>نسخهٔ رابط کاربری در دسترس نیست</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>پیش از اتصال، یک به‌روزرسانی الزامی Tovra در حال بررسی است.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>در حال تکمیل آخرین بررسی به‌روزرسانی پیش از شروع بارگیری...</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>پیش از اتصال باید یک به‌روزرسانی الزامی Tovra نصب شود.</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>سرویس Tovra در دسترس نیست</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>سرویس Tovra پاسخ نداد</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>پیش از اتصال باید یک به‌روزرسانی ضروری Tovra نصب شود</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>درخواست اتصال دیگری جایگزین این درخواست شد</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>ذخیره</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>انتخاب مناطق</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>جست‌وجوی کشورها</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>کشورها</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>لغو</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>ترافیک به مناطقی که علامت می‌زنید مستقیم و خارج از تونل می‌رود. بقیهٔ ترافیک از تونل عبور می‌کند.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>ترافیک به مناطقی که علامت می‌زنید مستقیم و نه از طریق پراکسی می‌رود. بقیهٔ ترافیک از پراکسی عبور می‌کند.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>ترافیک به مناطقی که علامت می‌زنید از تونل عبور می‌کند. بقیهٔ ترافیک مستقیم می‌رود.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>ترافیک به مناطقی که علامت می‌زنید از پراکسی عبور می‌کند. بقیهٔ ترافیک مستقیم می‌رود.</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>علامت‌خورده: %1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>هیچ کشوری با «%1» مطابقت ندارد.</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>فهرست قواعد</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>درون‌ریزی</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>قواعد تفکیک سفارشی</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>در هر خط یک دامنه، نشانی IP یا بازهٔ CIDR، مانند example.org، 203.0.113.7 یا 10.0.0.0/8. خط‌هایی که با # شروع می‌شوند توضیح هستند.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>قواعد</translation>
    </message>
    <message>
        <source>example.org
*.example.net
203.0.113.0/24</source>
        <translation>example.org
*.example.net
203.0.113.0/24</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button</extracomment>
        <translation>بستن</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>جایگزینی فهرست انتخاب‌شده با این قواعد</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>مستقیم</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>پراکسی</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>مسدود</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>سایت‌ها و نشانی‌هایی که همیشه مستقیم می‌روند</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>سایت‌ها و نشانی‌هایی که همیشه از طریق Tovra می‌روند</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>سایت‌ها و نشانی‌های مسدودشده</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>در حال بارگذاری قواعد…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>سرویس Tovra هیچ فهرست قاعده‌ای گزارش نمی‌کند.</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>قواعد هنوز بارگذاری نشده‌اند.</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>قواعد: %1 · خط‌ها: %2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>درون‌ریزی نشده</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>در حال درون‌ریزی…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>چیزی درون‌ریزی نشد. ابتدا این خط‌ها را اصلاح کنید:</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>خط %1: «%2» دامنه، نشانی IP یا بازهٔ CIDR نیست.</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… مجموع خط‌های نادرست: %1.</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: در حال اتصال...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: در حال اتصال به %1...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: در حال به‌روزرسانی TovraVPN تفکیکی...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: در حال به‌روزرسانی مناطق TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: در حال به‌روزرسانی GFWList در TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: در حال به‌روزرسانی قواعد سفارشی TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: در حال به‌روزرسانی Tovra Proxy تفکیکی...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: در حال به‌روزرسانی مناطق Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: در حال به‌روزرسانی GFWList در Tovra Proxy...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>انجام این کار ممکن نشد</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>پوشهٔ گزارش‌ها</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>%1 مشخص نشده است</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1 وجود ندارد: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>باز کردن %1 ممکن نشد: %2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>فعلی: در حال بارگذاری...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>تازه‌سازی مکان‌ها</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>در حال بارگذاری مکان‌ها...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>خودکار</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Mode: TovraVPN</source>
        <translation>حالت: TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>سراسری</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>تفکیکی</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>گزینه‌های تفکیک</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>پیش‌فرض: تونل</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>پیش‌فرض: مستقیم</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>مناطق</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList ← تونل</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>قواعد تفکیک سفارشی</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>حالت: Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>پیش‌فرض: پراکسی</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList ← پراکسی</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: در حال شروع...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>سرویس: در حال بررسی...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>باز کردن Tovra...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>قطع اتصال</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>مکان</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>پراکسی سیستم</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>خاموش</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>روشن</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>قفل</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>شبکهٔ محلی</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>دسترسی شبکهٔ محلی</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>مستقیم</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>محافظت‌شده</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>قطع اضطراری</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>تازه‌سازی وضعیت</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>باز کردن گزارش‌ها</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>حساب: در حال بررسی...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>خروج از حساب</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: سرویس در دسترس نیست</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>سرویس در دسترس نیست</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>حساب: در دسترس نیست</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra - سرویس در دسترس نیست</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: در حال رفتن به خودکار...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: در حال رفتن به WireGuard...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: در حال رفتن به TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: در حال رفتن به TovraVPN تفکیکی...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: در حال رفتن به Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: در حال رفتن به Tovra Proxy تفکیکی...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>پراکسی سیستم: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>شبکهٔ محلی: %1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>تونل</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>پراکسی</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>مناطق با مسیر %1: %2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>تازه‌سازی مکان‌ها ممکن نشد</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>بارگذاری مکان‌ها ممکن نشد</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>تازه‌سازی گروه‌های مکان ممکن نشد</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>بارگذاری گروه‌های مکان ممکن نشد</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>در حال تازه‌سازی مکان‌ها...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>مکان‌ها بارگذاری نشده‌اند</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>مکان ذخیره‌شده‌ای وجود ندارد</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>مکانی وجود ندارد</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>فعلی: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>هیچ</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>تازه‌سازی مکان‌ها (%1 ث)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>مکان: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>مکان: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>فعلی: %1 (قدیمی)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>گروه</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>کمتر از 1 دقیقه</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 دقیقه</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 ساعت</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 ساعت %2 دقیقه</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 روز</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 روز %2 ساعت</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>خطا: %1</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: در حال قطع اتصال...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: در حال خروج از حساب...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: در حال به‌روزرسانی پراکسی سیستم...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: در حال به‌روزرسانی مسیریابی شبکهٔ محلی...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: در حال روشن کردن قطع اضطراری...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: در حال خاموش کردن قطع اضطراری...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: اتصال ناموفق بود</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: قطع اتصال ناموفق بود</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>از حساب خارج شدید</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>انجام کار مربوط به حساب ممکن نشد</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>تغییر حالت ممکن نشد</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>حالت به‌روز شد</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>پراکسی سیستم روی %1 تنظیم شد</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>به‌روز شد</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>قطع اضطراری روشن شد</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>قطع اضطراری خاموش شد</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>تغییر قطع اضطراری ممکن نشد</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>متصل</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>قطع</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>در حال اتصال</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>در حال قطع اتصال</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>آماده</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>نامشخص</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>در حال اجرا</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>سرویس: %1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>سرویس: %1 (%2)</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>حساب: ذخیره‌شده</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>حساب: ورود لازم است</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>حساب: %1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>حساب: وارد شده‌اید</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>قطع اضطراری: %1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>خاموش</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>روشن</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>قفل</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · قفل است: به طرح %2 نیاز دارد</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>خواندن وضعیت بارگیری به‌روزرسانی ممکن نشد.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>بارگیری لغو شد.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>بارگیری به‌روزرسانی ممکن نشد.</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>بارگیری کامل شد. در حال باز کردن نصب‌کننده...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>پیوند بارگیری در دسترس نیست.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>باز کردن پیوند بارگیری به‌روزرسانی ممکن نشد.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>پیوند بارگیری در مرورگر شما باز شد. Tovra نصب‌کننده را خودکار اجرا نمی‌کند.</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>به‌روزرسانی Tovra</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>پیش از اتصال باید Tovra را به‌روزرسانی کنید. نصب‌کننده را بارگیری کنید یا از Tovra خارج شوید.</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>تازه‌ها</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>پیشرفت بارگیری</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>پنهان کردن این به‌روزرسانی</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>اکنون نه</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>خروج از Tovra</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>خروج از Tovra بدون به‌روزرسانی</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>باز کردن پیوند بارگیری</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>باز کردن پیوند بارگیری به‌روزرسانی Tovra</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>یک به‌روزرسانی الزامی در دسترس است</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>به‌روزرسانی جدیدی برای Tovra در دسترس است</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>نامشخص</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>جدیدترین</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>نسخهٔ فعلی: %1
نسخهٔ در دسترس: %2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>یادداشت‌های انتشار در دسترس نیست.</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>در حال بارگیری %1 از %2</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>در حال بارگیری به‌روزرسانی...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 مگابایت</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>در حال آماده‌سازی بارگیری...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>در حال تأیید بارگیری...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>در حال لغو بارگیری...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>بارگیری در پس‌زمینه</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>آخرین نصب‌کننده را بدون وقفه در کار فعلی‌تان بارگیری کنید.</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>پنهان کردن این پنجره هنگام بارگیری به‌روزرسانی</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>در حال لغو...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>لغو بارگیری به‌روزرسانی</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>لغو بارگیری</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>در حال باز کردن نصب‌کننده...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>تلاش دوباره</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>تلاش دوباره برای بارگیری به‌روزرسانی</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>بارگیری به‌روزرسانی</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>بارگیری و نصب به‌روزرسانی Tovra</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>در حال تلاش دوباره برای بارگیری...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>به‌روزرسانی‌ها</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>بررسی به‌روزرسانی‌ها</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Tovra برای Linux</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>نسخهٔ این برنامه.</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>از سرویس Tovra دربارهٔ نسخهٔ جدیدتر بپرسید.</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (ساخت %2)</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>قطع اضطراری</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>ورود</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>لغو</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>قطع اتصال</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>در حال قطع اتصال…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>سرویس در دسترس نیست</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>در انتظار پاسخ سرویس Tovra.</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>خارج شده‌اید</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>برای اتصال به حساب Tovra خود وارد شوید.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>مکان</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>آخرین مکان</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>ترافیک شما از تونل Tovra عبور می‌کند.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>در حال اتصال…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>در حال برقراری تونل.</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>در حال اتصال به %1</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>در حال بستن تونل.</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>قطع شده</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>قطع اضطراری تا زمان اتصال، ترافیک را مسدود می‌کند.</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>ترافیک شما محافظت نمی‌شود.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>متصل به %1</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>اتصال ناموفق بود: %1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>پاک کردن</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>مکان‌هایی که به آن‌ها وصل می‌شوید اینجا نمایش داده می‌شوند.</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>مکان‌های اخیر</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>پاک کردن مکان‌های اخیر</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>اتصال به %1</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>مدت اتصال: %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>حالت: %1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>انجام کار مربوط به حساب ممکن نشد</translation>
    </message>
    <message>
        <source>Could not open link</source>
        <translation>باز کردن پیوند ممکن نشد</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>پوشهٔ گزارش‌ها در دسترس نیست</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>پوشهٔ گزارش‌ها وجود ندارد: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>باز کردن پوشهٔ گزارش‌ها ممکن نشد: %1</translation>
    </message>
</context>
<context>
    <name>WindowShortcuts</name>
    <message>
        <source>Ctrl+1</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show the VPN page</source>
        <translation>نمایش صفحهٔ VPN</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>نمایش صفحهٔ مکان‌ها</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>نمایش صفحهٔ حالت</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>نمایش صفحهٔ تنظیمات</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>نمایش صفحهٔ حساب</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>جست‌وجو: کادر اتصال سریع در صفحهٔ VPN، فهرست در صفحهٔ مکان‌ها</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>به‌روزرسانی مکان‌ها</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>بستن پنجره؛ Tovra در سینی سیستم می‌ماند</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>خروج از Tovra</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>بستن فهرست، منو یا پنجرهٔ گفت‌وگو</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>نمایش همین میان‌برهای صفحه‌کلید</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
</TS>
