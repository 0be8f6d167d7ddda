--top d en
--


-- (legal notice)




--stage HELD=1 d en q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg7i1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mg7i1;

 ARCHITECTURE RTL OF top_mg7i1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s1_w_lg_d2w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s1_w_lg_w_lg_d2w3w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_d2w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_w_lg_d2w3w(i) <= wire_s1_w_lg_d2w(i) XOR en;
	END GENERATE loop1;
	keep <= "1110";
	q <= wire_s1_w_lg_w_lg_d2w3w;

 END RTL; --top_mg7i1


--stage HELD=1 d q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgka1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mgka1;

 ARCHITECTURE RTL OF top_mgka1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s2_w_lg_d4w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_w_lg_w_lg_d4w5w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  en	:	STD_LOGIC;
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop2 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_d4w(i) <= d(i) AND keep(i);
	END GENERATE loop2;
	loop3 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_w_lg_d4w5w(i) <= wire_s2_w_lg_d4w(i) XOR en;
	END GENERATE loop3;
	en <= '1';
	keep <= "1110";
	q <= wire_s2_w_lg_w_lg_d4w5w;

 END RTL; --top_mgka1

--synthesis_resources = blk 1 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC;
		 full	:	OUT  STD_LOGIC;
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_c1_o	:	STD_LOGIC;
	 SIGNAL  wire_s1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s3_d	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_vcc	:	STD_LOGIC;
	 SIGNAL  wire_s3_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  blk
	 GENERIC 
	 (
		Depth	:	NATURAL;
		lpm_hint	:	STRING := "UNUSED";
		lpm_type	:	STRING := "blk"
	 );
	 PORT
	 ( 
		a	:	IN STD_LOGIC_VECTOR(3 DOWNTO 0);
		ena	:	IN STD_LOGIC := '1';
		o	:	OUT STD_LOGIC;
		spare	:	OUT STD_LOGIC
	 ); 	 END COMPONENT;
	 COMPONENT  top_mg7i1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mgka1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	wire_vcc <= '1';
	full <= wire_c1_o;
	q <= wire_s3_q;
	c1 :  blk
	  GENERIC MAP (
		Depth => 3
	  )
	  PORT MAP ( 
		a => wire_s3_q,
		o => wire_c1_o
	  );
	s1 :  top_mg7i1
	  PORT MAP ( 
		d => d,
		en => en,
		q => wire_s1_q
	  );
	s2 :  top_mgka1
	  PORT MAP ( 
		d => wire_s1_q,
		q => wire_s2_q
	  );
	wire_s3_d <= (wire_s2_q OR d);
	s3 :  top_mg7i1
	  PORT MAP ( 
		d => wire_s3_d,
		en => wire_vcc,
		q => wire_s3_q
	  );

 END RTL; --top
--VALID FILE
